// See MainView.h; its menus and tools are in MainViewCommands.cpp.
#include "desktop/main/MainView.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include "app/Declarations.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Fields.h"
#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/FieldPanel.h"
#include "desktop/kit/LineIcon.h"
#include "desktop/kit/ListButton.h"
#include "desktop/kit/Text.h"
#include "desktop/main/ReflowArea.h"
#include "desktop/main/ShapeWidget.h"

namespace {

/// The room that the widest unit takes.
int UnitWidth(const QFontMetrics& font) {
  QStringList units;
  for (int system = Units::English; system <= Units::Last; ++system) {
    for (int quantity = Units::Length; quantity <= Units::Dimensionless; ++quantity) {
      units << Printed(UnitLabel(system, quantity));
    }
  }
  units.removeDuplicates();
  int width = 0;
  for (const QString& unit : units) width = std::max(width, font.horizontalAdvance(unit));
  return width + 1;
}

struct Sign {
  const char* Icon;
  const char* Words;
  QColor (*Colour)(const QPalette&);
};
constexpr Sign Solved{"solved", "Solved", Appearance::Good};
constexpr Sign Missing{"missing", "To be filled in", Appearance::Neutral};
constexpr Sign Wrong{"wrong", "Cannot be used", Appearance::Bad};
constexpr Sign Failed{"wrong", "Failed", Appearance::Bad};

const Sign& StatusOf(const frmMain& form) {
  if (form.TellsFailure()) return Failed;
  const frmMain::Progress progress = form.CurrentProgress;
  if (progress == frmMain::Progress::Solved) return Solved;
  return progress == frmMain::Progress::Missing ? Missing : Wrong;
}

/// The project file that is being dragged; empty when it is anything else.
QString DraggedProject(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1) return {};
  const QString path = urls.first().toLocalFile();
  return path.endsWith(QLatin1String(".fwd"), Qt::CaseInsensitive) ? path : QString();
}

}  // namespace

MainView::MainView(frmMain& form, QWidget* parent) : QMainWindow(parent), form_(form) {
  AddMenus();
  AddTools();
  auto* const central = new QWidget(this);
  auto* const page = new QWidget(central);
  auto* const top = ProjectRow(page);
  auto* const inputs = Inputs(page);
  auto* const drawing = new ShapeWidget(form, page);
  auto* const results = Results(page);
  const int unitWidth = UnitWidth(fontMetrics());
  for (FieldPanel* const panel : {inputs, results}) panel->KeepRoom(unitWidth);
  auto* const column = new QVBoxLayout(central);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(new ReflowArea(page, {top, inputs, drawing, results}, central), 1);
  column->addWidget(StatusLine());
  setCentralWidget(central);
  Bind::Join(Declarations::DataChanged, this,
             [](MainView& view, bool changed) { view.setWindowModified(changed); });
  setAcceptDrops(true);
  findChild<QWidget*>(ToQt((form.tbFlow.Locked ? form.tbDepth : form.tbFlow).Name()))->setFocus();
  PlaceOnScreen();
}

void MainView::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedProject(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainView::dropEvent(QDropEvent* event) {
  const QString path = DraggedProject(*event->mimeData());
  event->acceptProposedAction();
  // Afterwards: opening may ask something, and the program dragged from waits for the drop to end.
  QTimer::singleShot(0, this, [this, path] { form_.OpenInstead(FromQt(path)); });
}

QWidget* MainView::ProjectRow(QWidget* parent) {
  auto* const row = new QWidget(parent);
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  QLabel* const caption = Bind::Caption(form_.lblProjName, row, "j");
  BoxEdit* const box = Bind::Box(form_.tbProjName, row);
  caption->setBuddy(box);
  layout->addWidget(caption);
  layout->addWidget(box);
  return row;
}

QAction* MainView::ActionOf(const MenuItem& item) const {
  return findChild<QAction*>(ToQt(item.Name()));
}

QWidget* MainView::TypeHeading(QWidget* parent) {
  auto* const heading = Bind::Named(form_.lblChanType, new ListButton(parent));
  Bind::Join(form_.lblChanType.Caption, heading,
             [](ListButton& w, const std::string& type) { w.setText(ToQt(type)); });
  auto* const types = new QMenu(heading);
  for (const ChannelType& type : AllChannelTypes()) types->addAction(ActionOf(form_.*type.Item));
  heading->setMenu(types);
  heading->setToolTip(tr("Channel type (Ctrl+1 to Ctrl+%1)").arg(AllChannelTypes().size()));
  return heading;
}

QWidget* MainView::SolveSwitch(const Field& field, QWidget* parent) {
  if (field.Solve.Press == nullptr) return nullptr;
  auto* const shown = Bind::Named(form_.*field.Solve.Press, new QRadioButton(tr("solve"), parent));
  shown->setFocusPolicy(Qt::NoFocus);  // the box that is typed into keeps the keyboard
  const QString name = tr("Solve for %1").arg(QString::fromLatin1(field.Caption.Usual).toLower());
  const QString key = ActionOf(form_.*field.Solve.Command)->shortcut().toString(QKeySequence::NativeText);
  shown->setAccessibleName(name);
  shown->setToolTip(QStringLiteral("%1 (%2)").arg(name, key));
  Bind::Follow((form_.*field.Solve.Command).Checked, shown, [this, shown, &field] {
    if ((form_.*field.Solve.Command).Checked) shown->setChecked(true);  // which frees the other
  });
  connect(shown, &QRadioButton::clicked, this, [this, &field] { (form_.*field.Solve.Press).Click(); });
  return shown;
}

void MainView::AddRow(FieldPanel& panel, const Field& field) {
  BoxEdit* const box = panel.AddField(
      {form_.*field.Name, form_.*field.Box, field.Unit == nullptr ? nullptr : &(form_.*field.Unit),
       field.Suffix, field.Symbol, field.Mnemonic, field.Caption, SolveSwitch(field, &panel)});
  box->addActions({ActionOf(form_.mnuEditCopyWithUnit), ActionOf(form_.mnuEditCopyFull)});
  const Picker& picker = field.Choose;
  if (picker.Press != nullptr) {
    panel.AddUnderBox(Bind::Push(form_.*picker.Press, &panel, picker.Mnemonic));
  }
}

FieldPanel* MainView::Inputs(QWidget* parent) {
  auto* const panel = new FieldPanel(TypeHeading(parent), parent);
  for (const Field& field : Fields()) {
    if (field.Result != ResultWhen::Always) AddRow(*panel, field);
  }
  panel->AddUnderBox(Bind::Push(form_.cmdIrreg, panel, "i"));
  return panel;
}

FieldPanel* MainView::Results(QWidget* parent) {
  auto* const panel = new FieldPanel(new QLabel(QStringLiteral("Results"), parent), parent);
  for (const Field& field : Fields()) {
    if (field.Result == ResultWhen::Always) AddRow(*panel, field);
  }
  panel->AlignDecimals();
  return panel;
}

QWidget* MainView::StatusLine() {
  auto* const line = new QFrame(this);
  line->setBackgroundRole(QPalette::Midlight);
  auto* const layout = new QHBoxLayout(line);
  const int em = fontMetrics().height();
  layout->setContentsMargins(em * 3 / 4, em / 4, em * 3 / 4, em / 4);
  auto* const sign = new QLabel(line);
  QLabel* const text = Bind::Caption(form_.lblStatus, line);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(sign);
  layout->addWidget(text, 1);
  QPushButton* const notes = Bind::Push(form_.cmdNotes, line);
  notes->setFlat(true);
  notes->setAccessibleName(tr("Notes"));
  notes->setToolTip(tr("Open the working at the notes (F8)"));
  layout->addWidget(notes);
  const auto show = [this, sign, em] {
    const Sign& status = StatusOf(form_);
    sign->setPixmap(LineIcon(status.Icon, status.Colour(palette())).pixmap(em * 5 / 4));
    sign->setAccessibleName(QLatin1String(status.Words));
  };
  // The same reason applies to a box that is empty and of one that holds a wrong number.
  Bind::Follow(form_.CurrentProgress, sign, show);
  Bind::Follow(form_.lblStatus.Caption, sign, show);
  return line;
}

void MainView::PlaceOnScreen() {
  const int em = fontMetrics().height();
  const QSize room = screen()->availableSize() - QSize(em / 2, 2 * em);
  resize(QSize(76 * em, 46 * em).boundedTo(room));
}

void MainView::resizeEvent(QResizeEvent* event) {
  // The texts go below their icons before a tool is hidden for want of room.
  auto* const bar = findChild<QToolBar*>();
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  if (bar->sizeHint().width() > width()) bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  QMainWindow::resizeEvent(event);
}
