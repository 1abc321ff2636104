// Loaded beside any Qt program (LD_PRELOAD), without which it would not know: once its first window is
// painted, prints the monotonic clock in ns, and when it has come to rest the window's size and the resident
// memory in KiB. Then it ends the program.
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <iostream>

namespace {

constexpr int RestMilliseconds = 500;

/// Resident pages are the second number of statm.
qint64 ResidentKiB() {
  QFile statm("/proc/self/statm");
  if (!statm.open(QIODevice::ReadOnly)) return 0;
  return statm.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024;
}

class FirstPaint : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* const window = qobject_cast<QWindow*>(watched);
    if (event->type() == QEvent::Expose && window != nullptr && window->isExposed()) {
      QCoreApplication::instance()->removeEventFilter(this);
      // The window paints while it takes this event: when the program waits again, it has.
      QTimer::singleShot(0, this, [this, window] { Report(*window); });
    }
    return false;
  }

 private:
  void Report(const QWindow& window) {
    using namespace std::chrono;
    const auto painted = duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
    QTimer::singleShot(RestMilliseconds, this, [painted, &window] {
      std::cout << painted << ' ' << window.width() << ' ' << window.height() << ' ' << ResidentKiB()
                << std::endl;
      _exit(0);
    });
  }
};

void Watch() {
  QCoreApplication* const application = QCoreApplication::instance();
  application->installEventFilter(new FirstPaint(application));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
