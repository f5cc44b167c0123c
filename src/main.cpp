#include <QLibraryInfo>
#include <QTranslator>

#include "AllWindows.h"
#include "core/Surroundings.h"
#include "platform/SystemChance.h"
#include "platform/SystemFiles.h"
#include "platform/qt/Application.h"
#include "platform/qt/Forms.h"
#include "platform/qt/Look.h"
#include "platform/qt/QtBoxes.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtPrinter.h"

using namespace Qt::StringLiterals;

// Makes the doors and the windows and connects them. What the program does is decided in the
// modules.

namespace {

/// The toolkit's own words (the menus of text fields) in Turkish too, whatever the system's
/// language.
void speakTurkish(QTranslator& translator) {
  if (translator.load(u"qtbase_tr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&translator);
  }
}

}  // namespace

int main(int, char** argv) {
  using namespace karvenis;
  SystemFiles files;  // first, since the toolkit may write files too
  int count = 1;      // only the program's name: it does not take the toolkit's options
  Application application(count, argv);
  Application::setApplicationName(u"KARVENIS"_s);
  Application::setDesktopFileName(u"karvenis"_s);
  applyLook();
  QTranslator turkish;
  speakTurkish(turkish);

  SharedState state;
  QtBoxes boxes;
  QtClock clock;
  SystemChance chance;
  QtPrinter printer;
  Forms forms(boxes);
  Surroundings around{state, boxes, clock, chance, files, printer, forms};
  boxes.beforeOpening = [&forms] { return forms.boxOpens(); };
  boxes.afterClosing = [&forms] { forms.boxClosed(); };

  addWindows(forms, around);
  return forms.run();
}
