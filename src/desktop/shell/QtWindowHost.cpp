// See QtWindowHost.h.
#include "desktop/shell/QtWindowHost.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QShortcut>

#include "desktop/help/AboutView.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/FrontWindow.h"
#include "desktop/kit/Text.h"
#include "desktop/kit/WindowPlace.h"
#include "desktop/main/DigitsView.h"
#include "desktop/main/FindView.h"
#include "desktop/main/MainView.h"
#include "desktop/main/MannParamView.h"
#include "desktop/rating/GraphSettingsView.h"
#include "desktop/rating/GraphView.h"
#include "desktop/rating/TableSettingsView.h"
#include "desktop/rating/TableView.h"
#include "desktop/section/ImportView.h"
#include "desktop/section/IrregView.h"
#include "desktop/section/SectionView.h"
#include "desktop/working/WorkingView.h"
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

template <class FormType, class View>
QWidget* Make(Form& form) {
  auto* const shown = dynamic_cast<FormType*>(&form);
  return shown == nullptr ? nullptr : new View(*shown, FrontWindow());
}

QWidget* MakeView(Form& form) {
  constexpr QWidget* (*Makers[])(Form&) = {
      Make<frmMain, MainView>,           Make<frmDigits, DigitsView>,
      Make<frmMannParam, MannParamView>, Make<frmGraphSettings, GraphSettingsView>,
      Make<frmGraph, GraphView>,         Make<frmTableSettings, TableSettingsView>,
      Make<frmTable, TableView>,         Make<frmIrreg, IrregView>,
      Make<frmSection, SectionView>,     Make<frmImport, ImportView>,
      Make<frmFind, FindView>,           Make<frmWorking, WorkingView>,
      Make<frmAbout, AboutView>};
  for (const auto make : Makers) {
    if (QWidget* const view = make(form)) return view;
  }
  qFatal("No view for %s", form.Name().c_str());
}

}  // namespace

QtWindowHost::QtWindowHost() {
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

void QtWindowHost::Open(Form& form) {
  if (!form.IsLoaded()) return;
  QWidget* const window = MakeView(form);
  windows_[&form] = window;
  window->setObjectName(ToQt(form.Name()));
  Bind::Join(form.Caption, window, [](QWidget& w, const std::string& caption) {
    // "[*]" is where Qt marks a changed document; one in the caption itself is doubled to stay as it is.
    const QString mark = QStringLiteral("[*]");
    w.setWindowTitle(ToQt(caption).replace(mark, mark + mark) + mark);
  });
  KeepPlace(*window);
  window->installEventFilter(new CloseAsksForm(form, window));
  auto* const help = new QShortcut(QKeySequence::HelpContents, window);
  QObject::connect(help, &QShortcut::activated, window, [&form] { HTMLHelp::ShowFor(form); });
  form.UnloadView = [window] {
    window->hide();
    window->deleteLater();
  };
  window->show();
}

void QtWindowHost::Raise(Form& form) {
  QWidget* const window = WindowOf(form);
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->raise();
  window->activateWindow();
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
