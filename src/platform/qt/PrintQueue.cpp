#include "platform/qt/PrintQueue.h"

#include <QLibrary>
#include <QSizeF>
#include <QString>

#include "platform/RunTimeError.h"

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr char jobTitle[] = "KARVENIS";

/// A function of a library that is loaded while the program runs.
struct Symbol {
  QFunctionPointer address;
  template <typename Function>
  operator Function*() const {  // NOLINT(google-explicit-constructor): takes its name's type
    return reinterpret_cast<Function*>(address);
  }
};

/// The print library. It is loaded by the first print: linked to the program, it would be loaded at
/// every start, with the twenty libraries behind it.
struct Cups {
  QLibrary library{u"cups"_s, 2};
  decltype(&cupsGetNamedDest) getNamedDest = symbol("cupsGetNamedDest");
  decltype(&cupsFreeDests) freeDests = symbol("cupsFreeDests");
  decltype(&cupsCopyDestInfo) copyDestInfo = symbol("cupsCopyDestInfo");
  decltype(&cupsFreeDestInfo) freeDestInfo = symbol("cupsFreeDestInfo");
  decltype(&cupsGetOption) getOption = symbol("cupsGetOption");
  decltype(&cupsFindDestDefault) findDestDefault = symbol("cupsFindDestDefault");
  decltype(&ippGetString) getString = symbol("ippGetString");
  decltype(&pwgMediaForPWG) mediaForPwg = symbol("pwgMediaForPWG");
  decltype(&pwgMediaForPPD) mediaForPpd = symbol("pwgMediaForPPD");
  decltype(&cupsGetDestMediaByName) getDestMedia = symbol("cupsGetDestMediaByName");
  decltype(&cupsCreateDestJob) createDestJob = symbol("cupsCreateDestJob");
  decltype(&cupsStartDestDocument) startDestDocument = symbol("cupsStartDestDocument");
  decltype(&cupsWriteRequestData) writeRequestData = symbol("cupsWriteRequestData");
  decltype(&cupsFinishDestDocument) finishDestDocument = symbol("cupsFinishDestDocument");
  decltype(&cupsCancelDestJob) cancelDestJob = symbol("cupsCancelDestJob");

 private:
  Symbol symbol(const char* name) {
    const Symbol found{library.resolve(name)};
    if (found.address == nullptr) failToPrint();
    return found;
  }
};

const Cups& cups() {
  static const Cups library;
  return library;
}

/// Lengths in the print library are hundredths of a millimetre.
constexpr double millimetres(int length) { return length / 100.0; }

bool isAccepted(ipp_status_t status) { return status <= IPP_STATUS_OK_EVENTS_COMPLETE; }

}  // namespace

void failToPrint() { throw RunTimeError(Fault::printer, "printer", "yazıcı kullanılamıyor"); }

void PrintQueue::FreeQueue::operator()(cups_dest_t* queue) const { cups().freeDests(1, queue); }
void PrintQueue::FreeInfo::operator()(cups_dinfo_t* info) const { cups().freeDestInfo(info); }

PrintQueue::PrintQueue() : queue_(cups().getNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr)) {
  if (!queue_) failToPrint();
  info_.reset(cups().copyDestInfo(CUPS_HTTP_DEFAULT, queue_.get()));
  if (!info_) failToPrint();
}

/// The name of the paper that the user has chosen for this queue, else of the queue's own; null if
/// there is none.
const char* PrintQueue::paper() const {
  for (const char* word : {"PageSize", "media"}) {  // print filters prefer the first
    const char* chosen = cups().getOption(word, queue_->num_options, queue_->options);
    if (chosen != nullptr) return chosen;
  }
  ipp_attribute_t* own =
      cups().findDestDefault(CUPS_HTTP_DEFAULT, queue_.get(), info_.get(), "media");
  return own == nullptr ? nullptr : cups().getString(own, 0, nullptr);
}

QPageLayout PrintQueue::page() const {
  QPageLayout page(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}, QPageLayout::Millimeter);
  const char* name = paper();
  if (name == nullptr) return page;
  const pwg_media_t* media = cups().mediaForPwg(name);
  if (media == nullptr) media = cups().mediaForPpd(name);
  if (media == nullptr) return page;

  const QSizeF size(millimetres(media->width), millimetres(media->length));
  page.setPageSize(QPageSize(size, QPageSize::Millimeter, {}, QPageSize::FuzzyMatch));
  cups_size_t known;
  if (cups().getDestMedia(CUPS_HTTP_DEFAULT, queue_.get(), info_.get(), media->pwg,
                          CUPS_MEDIA_FLAGS_DEFAULT, &known) != 0) {
    page.setMargins({millimetres(known.left), millimetres(known.top), millimetres(known.right),
                     millimetres(known.bottom)});
  }
  return page;
}

void PrintQueue::send(const QByteArray& pdf) const {
  int job = 0;
  if (!isAccepted(cups().createDestJob(CUPS_HTTP_DEFAULT, queue_.get(), info_.get(), &job, jobTitle,
                                       queue_->num_options, queue_->options))) {
    failToPrint();
  }
  if (!sendTo(job, pdf)) {
    cups().cancelDestJob(CUPS_HTTP_DEFAULT, queue_.get(), job);
    failToPrint();
  }
}

/// Returns whether the queue has taken the whole document.
bool PrintQueue::sendTo(int job, const QByteArray& pdf) const {
  constexpr int isLastDocument = 1;
  return cups().startDestDocument(CUPS_HTTP_DEFAULT, queue_.get(), info_.get(), job, jobTitle,
                                  CUPS_FORMAT_PDF, 0, nullptr,
                                  isLastDocument) == HTTP_STATUS_CONTINUE &&
         cups().writeRequestData(CUPS_HTTP_DEFAULT, pdf.constData(),
                                 static_cast<std::size_t>(pdf.size())) == HTTP_STATUS_CONTINUE &&
         isAccepted(cups().finishDestDocument(CUPS_HTTP_DEFAULT, queue_.get(), info_.get()));
}

}  // namespace karvenis
