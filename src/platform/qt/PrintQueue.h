#pragma once

#include <cups/cups.h>

#include <QByteArray>
#include <QPageLayout>
#include <memory>

namespace karvenis {

/// Throws RunTimeError(printer), the one error of this door: no caller needs to know the cause.
[[noreturn]] void failToPrint();

/// The system's default print queue. A user's own choice of queue, paper and options (lpoptions)
/// is respected. Every call throws RunTimeError(printer) if there is no queue, it refuses, or the
/// print server does not answer.
class PrintQueue {
 public:
  PrintQueue();

  /// The queue's default paper with the margins that its printer cannot print on; A4 without
  /// margins if the queue names no paper.
  [[nodiscard]] QPageLayout page() const;
  /// Sends a whole PDF document as one job. If the queue does not take all of it, the job is
  /// cancelled: nothing of it is printed.
  void send(const QByteArray& pdf) const;

 private:
  struct FreeQueue {
    void operator()(cups_dest_t* queue) const;
  };
  struct FreeInfo {
    void operator()(cups_dinfo_t* info) const;
  };

  [[nodiscard]] const char* paper() const;
  [[nodiscard]] bool sendTo(int job, const QByteArray& pdf) const;

  std::unique_ptr<cups_dest_t, FreeQueue> queue_;
  std::unique_ptr<cups_dinfo_t, FreeInfo> info_;
};

}  // namespace karvenis
