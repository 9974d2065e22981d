#include "tools/zplogger/Serve.h"

#include <atomic>
#include <cstdlib>
#include <exception>
#include <mutex>

#include "tools/support/Visible.h"
#include "tools/zplogger/Console.h"
#include "tools/zplogger/Keys.h"
#include "tools/zplogger/Logger.h"
#include "tools/zplogger/OtherLogger.h"
#include "tools/zplogger/Printer.h"
#include "tools/zplogger/Receiver.h"
#include "tools/zplogger/Run.h"
#include "tools/zplogger/Worker.h"

namespace tessaly::zplogger {
namespace {

/// How long the end waits for an output that nobody reads, or a disk that does not answer.
constexpr std::chrono::seconds kLastWait{2};

bool hasColours(ColourChoice choice, Output& output) {
  return choice == ColourChoice::Automatic ? output.hasTrueColour() : choice == ColourChoice::Always;
}

/// Notices get colours only where a person reads them.
Colours coloursFor(ColourChoice choice) {
  const bool forNotices = choice != ColourChoice::Never && standardErrors().hasTrueColour();
  return {hasColours(choice, standardOutput()), forNotices};
}

/// A receiver that runs on one thread and is stopped from another, at whatever time.
class Reception {
 public:
  void run(Receiver& receiver) {
    const Presence presence(*this, receiver);
    receiver.run();
  }

  void stop() {
    const std::lock_guard lock(mutex_);
    isStopped_ = true;
    if (receiver_ != nullptr) receiver_->stop();
  }

 private:
  class Presence {
   public:
    Presence(Reception& reception, Receiver& receiver) : reception_(reception) {
      const std::lock_guard lock(reception_.mutex_);
      reception_.receiver_ = &receiver;
      if (reception_.isStopped_) receiver.stop();
    }
    Presence(const Presence&) = delete;
    Presence& operator=(const Presence&) = delete;
    ~Presence() {
      const std::lock_guard lock(reception_.mutex_);
      reception_.receiver_ = nullptr;
    }

   private:
    Reception& reception_;
  };

  std::mutex mutex_;
  Receiver* receiver_ = nullptr;
  bool isStopped_ = false;
};

/// The parts of a running logger, and its three threads.
class Service {
 public:
  explicit Service(const Arguments& arguments)
      : view_(Filter(arguments.level, arguments.text)),
        files_(ownLogDisk(), arguments.maxSize,
               [this](std::string notice) { view_.tell(std::move(notice)); }),
        logger_(view_, arguments.writesLogs ? &files_ : nullptr, ownClock()),
        printer_(view_, standardOutput(), standardErrors(), coloursFor(arguments.colour)) {}

  int run();

 private:
  void receive() noexcept;
  void print() noexcept;
  bool waitForEnd();
  void fail(const std::string& why);
  int code() const { return hasFailed_ ? kFailed : kDone; }

  /// First, since the other threads' signals are to come to it.
  Console console_;
  View view_;
  LogFiles files_;
  Logger logger_;
  Printer printer_;
  Reception reception_;
  std::atomic<bool> hasFailed_ = false;

  /// An output that goes with the end, as a terminal may, is no failure.
  std::atomic<bool> isEnding_ = false;
};

void Service::fail(const std::string& why) {
  hasFailed_ = true;
  view_.answer(why);
  console_.end();
}

void Service::receive() noexcept {
  try {
    const bool hasOther = isLoggerThere();
    Receiver receiver(logger_);
    if (receiver.window() == 0) return fail("can't make the window \"" + std::string(kServerTitle) + '"');
    view_.tell("waiting for clients as \"" + std::string(kServerTitle) + '"');
    if (hasOther)
      view_.tell("another logger runs already; clients take the one that the system shows them first");
    reception_.run(receiver);
    console_.end();
  } catch (const std::exception& error) {
    fail(error.what());
  }
}

void Service::print() noexcept {
  try {
    const Written written = printer_.run();
    if (written == Written::Done || isEnding_) return;
    hasFailed_ = true;
    if (written == Written::Failed) standardErrors().write("zplogger: can't write the output\n");
  } catch (const std::exception& error) {
    // What the view holds is shown by nobody any more.
    hasFailed_ = true;
    standardErrors().write("zplogger: " + tools::visible(std::string_view(error.what())) + '\n');
  }
  console_.end();
}

/// False where the output's reader has gone.
bool Service::waitForEnd() {
  Keys keys(view_);
  for (;;) {
    const Happening happening = console_.wait();
    switch (happening.kind) {
      case Happening::Kind::Key:
        if (!keys.press(happening.key)) return true;
        break;
      case Happening::Kind::Back:
        view_.redraw();
        break;
      default:
        return happening.kind == Happening::Kind::End;
    }
  }
}

int Service::run() {
  Worker printing([this] { print(); });
  Worker receiving([this] { receive(); });
  if (!waitForEnd()) hasFailed_ = true;
  isEnding_ = true;
  reception_.stop();
  const bool isReceived = receiving.endsWithin(kLastWait);
  view_.finish();
  const bool isPrinted = printing.endsWithin(kLastWait, [this] { return view_.waiting(); });
  console_.restore();
  // What hangs in a write can't be called back.
  if (!isReceived || !isPrinted) std::_Exit(code());
  return code();
}

}  // namespace

int serve(const Arguments& arguments) { return Service(arguments).run(); }

}  // namespace tessaly::zplogger
