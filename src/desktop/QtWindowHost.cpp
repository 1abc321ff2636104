// See QtWindowHost.h.
#include "desktop/QtWindowHost.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QShortcut>

#include "desktop/Bind.h"
#include "desktop/FrontWindow.h"
#include "desktop/MainView.h"
#include "desktop/Text.h"
#include "help/HTMLHelp.h"

namespace {

/// The title-bar box asks the form, which may refuse.
class CloseAsksForm : public QObject {
 public:
  CloseAsksForm(Form& form, QObject* window) : QObject(window), form_(form) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Close) return false;
    form_.Unload();
    event->setAccepted(!form_.IsLoaded());
    return true;
  }

 private:
  Form& form_;
};

}  // namespace

QtWindowHost::QtWindowHost(const OtherWindows* (*others)()) : others_(others) {
  // The application losing the keyboard (no new widget) is not leaving a control.
  QObject::connect(qApp, &QApplication::focusChanged, &connections_, [](QWidget*, QWidget* now) {
    FocusControl* const control = Bind::ControlOf(now);
    if (control != nullptr && control->Owner().IsLoaded()) control->Owner().MoveFocus(*control);
  });
}

QtWindowHost::~QtWindowHost() {
  for (const auto& [form, window] : windows_) delete window;
}

QWidget* QtWindowHost::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.data();
}

QWidget* QtWindowHost::MakeView(Form& form) const {
  if (auto* const main = dynamic_cast<frmMain*>(&form)) return new MainView(*main, FrontWindow());
  const OtherWindows* const others = others_();
  return others == nullptr ? nullptr : others->View(form, FrontWindow());
}

void QtWindowHost::Open(Form& form) {
  if (!form.IsLoaded()) return;
  QWidget* const window = MakeView(form);
  if (window == nullptr) return form.Unload();
  windows_[&form] = window;
  Bind::Join(form.Caption, window, [](QWidget& w, const std::string& caption) {
    // "[*]" is where Qt marks a changed document; one in the caption itself is doubled to stay as it is.
    const QString mark = QStringLiteral("[*]");
    w.setWindowTitle(ToQt(caption).replace(mark, mark + mark) + mark);
  });
  window->installEventFilter(new CloseAsksForm(form, window));
  auto* const help = new QShortcut(QKeySequence::HelpContents, window);
  QObject::connect(help, &QShortcut::activated, window, [&form] { HTMLHelp::ShowFor(form); });
  form.UnloadView = [window] {
    window->hide();
    window->deleteLater();
  };
  window->show();
}

void QtWindowHost::Wait(Form& form) {
  WaitUntilUnloaded(form);
  // At once: a dialog's form may not outlive this call, and its widgets speak to it.
  delete WindowOf(form);
  windows_.erase(&form);
}

void QtWindowHost::WaitUntilUnloaded(Form& form) {
  QEventLoop loop;
  QObject::connect(WindowOf(form), &QObject::destroyed, &loop, &QEventLoop::quit);
  loop.exec();
}
