// The menus and the tool bar of the main window. See MainView.h.
#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <initializer_list>
#include <vector>

#include "app/main/ChannelTypes.h"
#include "app/main/UnitSystems.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/LineIcon.h"
#include "desktop/kit/ToolBar.h"
#include "desktop/main/MainView.h"

namespace {

enum class Kind {
  Command,
  Choice,  // excludes the choices beside it
  Other,   // likewise; its key chooses another than the one in force
};
constexpr MenuItem frmMain::*Separator = nullptr;

struct ItemRow {
  MenuItem frmMain::*Item;
  const char* Mnemonics = "";
  QKeySequence Shortcut = {};
  Kind Is = Kind::Command;
};

/// A menu of which nothing is shown is not shown itself.
void ShowWhileUsed(QMenu* menu) {
  bool used = false;
  for (const QAction* const action : menu->actions())
    used = used || (!action->isSeparator() && action->isVisible());
  menu->menuAction()->setVisible(used);
}

QMenu* MakeMenu(frmMain& form, QMenuBar* bar, const char* title, const std::vector<ItemRow>& rows) {
  QMenu* const menu = bar->addMenu(QLatin1String(title));
  QActionGroup* choices = nullptr;
  for (const ItemRow& row : rows) {
    if (row.Item == Separator) {
      menu->addSeparator();
      choices = nullptr;
      continue;
    }
    MenuItem& item = form.*row.Item;
    QAction* const action = Bind::Item(item, menu, row.Mnemonics);
    if (row.Is != Kind::Command) {
      if (choices == nullptr) choices = new QActionGroup(menu);
      action->setCheckable(true);
      action->setChecked(item.Checked);
      choices->addAction(action);
    }
    Bind::Follow(item.Checked, action, [&item, action, key = row.Shortcut, is = row.Is] {
      action->setShortcut(is == Kind::Other && item.Checked ? QKeySequence() : key);
    });
    menu->addAction(action);
    Bind::Follow(item.Visible, menu, [menu] { ShowWhileUsed(menu); });
  }
  return menu;
}

/// "Rating Graph (Ctrl+G)"
QString TipOf(const QAction& command) {
  const QString name = command.text().remove(u'&').remove(QLatin1String("..."));
  return QStringLiteral("%1 (%2)").arg(name, command.shortcut().toString(QKeySequence::NativeText));
}

}  // namespace

void MainView::AddMenus() {
  QMenuBar* const bar = menuBar();
  QMenu* const file = MakeMenu(form_, bar, "&File",
                               {{&frmMain::mnuFileNew, "n", QKeySequence::New},
                                {&frmMain::mnuFileOpen, "o", QKeySequence::Open},
                                {&frmMain::mnuFileSave, "s", QKeySequence::Save},
                                // Not every desktop has a key of its own for this.
                                {&frmMain::mnuFileSaveAs, "a", QKeySequence(QStringLiteral("Ctrl+Shift+S"))},
                                {Separator},
                                {&frmMain::mnuFilePrint, "p", QKeySequence::Print},
                                {&frmMain::mnuFilePrintPreview, "v"},
                                {Separator},
                                {&frmMain::mnuFileExit, "x", QKeySequence::Quit}});
  file->addSeparator();
  static constexpr std::string_view numbers = "12345678";
  static_assert(numbers.size() == RecentFiles::Most);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    file->addAction(Bind::Item(form_.mnuFileRecent[static_cast<int>(i) + 1], file, numbers.substr(i, 1)));
  }
  file->addAction(Bind::Item(form_.mnuFileClearRecent, file, "c"));
  connect(file, &QMenu::aboutToShow, this, [this] { form_.ShowRecentFiles(); });
  // A text box that can be edited takes these keys itself, with its own history of edits.
  MakeMenu(form_, bar, "&Edit",
           {{&frmMain::mnuEditCut, "t", QKeySequence::Cut},
            {&frmMain::mnuEditCopy, "c", QKeySequence::Copy},
            {&frmMain::mnuEditPaste, "p", QKeySequence::Paste},
            {&frmMain::mnuEditDelete, "d", QKeySequence::Delete},
            {Separator},
            {&frmMain::mnuEditUndo, "u", QKeySequence::Undo},
            {&frmMain::mnuEditRedo, "r"},
            {Separator},
            {&frmMain::mnuEditSelectAll, "a", QKeySequence::SelectAll},
            {Separator},
            {&frmMain::mnuEditCopyWithUnit, "w"},
            {&frmMain::mnuEditCopyFull, "f"},
            {&frmMain::mnuEditCopyResults, "s", Qt::CTRL | Qt::SHIFT | Qt::Key_C}});
  findChild<QAction*>(QStringLiteral("mnuEditRedo"))
      ->setShortcuts({QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
  MakeMenu(form_, bar, "&Solve",
           {{&frmMain::mnuSolveForFlow, "f", Qt::CTRL | Qt::Key_F, Kind::Choice},
            {&frmMain::mnuSolveForDepth, "d", Qt::CTRL | Qt::Key_D, Kind::Choice},
            {Separator},
            {&frmMain::mnuSolveGraph, "g", Qt::CTRL | Qt::Key_G},
            {&frmMain::mnuSolveTable, "t", Qt::CTRL | Qt::Key_T},
            {&frmMain::mnuSolveSection, "c", Qt::CTRL | Qt::Key_E},
            {&frmMain::mnuSolveWorking, "w", Qt::Key_F8},
            {&frmMain::mnuSolveFind, "i", Qt::Key_F7}});
  std::vector<ItemRow> options;
  for (const ChannelType& type : AllChannelTypes()) {
    const auto number = static_cast<int>(options.size());
    options.push_back(
        {type.Item, type.Mnemonic, Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number), Kind::Choice});
  }
  options.push_back({Separator});
  for (const UnitSystem& system : AllUnitSystems()) {
    options.push_back({system.Item, system.Mnemonic, Qt::CTRL | Qt::Key_U, Kind::Other});
  }
  options.insert(options.end(), {{Separator}, {&frmMain::mnuOptionsDigits, "d"}});
  MakeMenu(form_, bar, "&Options", options);
  MakeMenu(form_, bar, "&Help",
           {{&frmMain::mnuHelpContents, "c"},
            {&frmMain::mnuHelpIndex, "i"},
            {Separator},
            {&frmMain::mnuHelpAbout, "a"}});
}

void MainView::AddTools() {
  QToolBar* const bar = MakeToolBar(*this);
  struct ToolRow {
    ToolButton& Tool;
    const char* Text;
    const char* Icon;
    MenuItem& Command;
  };
  auto& tools = form_.Toolbar1;
  const auto add = [this, bar](const std::initializer_list<ToolRow>& rows) {
    for (const ToolRow& row : rows) {
      QAction* const action = Bind::Tool(row.Tool, bar);
      action->setText(QLatin1String(row.Text));
      action->setIcon(LineIcon(row.Icon));
      action->setToolTip(TipOf(*ActionOf(row.Command)));
      bar->addAction(action);
    }
  };
  add({{tools.New, "New", "new", form_.mnuFileNew},
       {tools.Open, "Open", "open", form_.mnuFileOpen},
       {tools.Save, "Save", "save", form_.mnuFileSave},
       {tools.Print, "Print", "print", form_.mnuFilePrint}});
  QAction* const separator = bar->addSeparator();
  add({{tools.Graph, "Graph", "graph", form_.mnuSolveGraph},
       {tools.Table, "Table", "table", form_.mnuSolveTable},
       {tools.Section, "Section", "section", form_.mnuSolveSection}});
  for (ToolButton* const tool : {&tools.Graph, &tools.Table, &tools.Section}) {
    Bind::Follow(tool->Visible, separator, [&tools, separator] {
      separator->setVisible(tools.Graph.Visible || tools.Table.Visible || tools.Section.Visible);
    });
  }
}
