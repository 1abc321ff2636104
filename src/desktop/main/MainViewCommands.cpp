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

enum class Kind { Command, Choice };  // a choice excludes the choices beside it
constexpr MenuItem frmMain::*Separator = nullptr;

struct ItemRow {
  MenuItem frmMain::*Item;
  const char* Letters = "";
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
    QAction* const action = Bind::Item(item, menu, row.Letters);
    if (row.Is == Kind::Choice) {
      if (choices == nullptr) choices = new QActionGroup(menu);
      action->setCheckable(true);
      action->setChecked(item.Checked);
      choices->addAction(action);
    }
    action->setShortcut(row.Shortcut);
    menu->addAction(action);
    Bind::Follow(item.Visible, menu, [menu] { ShowWhileUsed(menu); });
  }
  return menu;
}

}  // namespace

void MainView::AddMenus() {
  QMenuBar* const bar = menuBar();
  MakeMenu(form_, bar, "&File",
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
  // A text box that can be edited takes these keys itself, with its own history of edits.
  MakeMenu(form_, bar, "&Edit",
           {{&frmMain::mnuEditCut, "t", QKeySequence::Cut},
            {&frmMain::mnuEditCopy, "c", QKeySequence::Copy},
            {&frmMain::mnuEditPaste, "p", QKeySequence::Paste},
            {&frmMain::mnuEditDelete, "d", QKeySequence::Delete}});
  MakeMenu(form_, bar, "&Solve",
           {{&frmMain::mnuSolveForFlow, "f", {}, Kind::Choice},
            {&frmMain::mnuSolveForDepth, "d", {}, Kind::Choice},
            {Separator},
            {&frmMain::mnuSolveGraph, "g"},
            {&frmMain::mnuSolveTable, "t"},
            {&frmMain::mnuSolveSection, "c"},
            {&frmMain::mnuSolveWorking, "w", Qt::Key_F8}});
  std::vector<ItemRow> options;
  for (const ChannelType& type : AllChannelTypes()) {
    options.push_back({type.Item, type.Mnemonic, {}, Kind::Choice});
  }
  options.push_back({Separator});
  for (const UnitSystem& system : AllUnitSystems()) {
    options.push_back({system.Item, system.Mnemonic, {}, Kind::Choice});
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
  };
  auto& tools = form_.Toolbar1;
  const auto add = [bar](const std::initializer_list<ToolRow>& rows) {
    for (const ToolRow& row : rows) {
      QAction* const action = Bind::Tool(row.Tool, bar);
      action->setText(QLatin1String(row.Text));
      action->setIcon(LineIcon(row.Icon));
      bar->addAction(action);
    }
  };
  add({{tools.New, "New", "new"},
       {tools.Open, "Open", "open"},
       {tools.Save, "Save", "save"},
       {tools.Print, "Print", "print"}});
  QAction* const separator = bar->addSeparator();
  add({{tools.Graph, "Graph", "graph"},
       {tools.Table, "Table", "table"},
       {tools.Section, "Section", "section"}});
  for (ToolButton* const tool : {&tools.Graph, &tools.Table, &tools.Section}) {
    Bind::Follow(tool->Visible, separator, [&tools, separator] {
      separator->setVisible(tools.Graph.Visible || tools.Table.Visible || tools.Section.Visible);
    });
  }
}
