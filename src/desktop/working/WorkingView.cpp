// See WorkingView.h.
#include "desktop/working/WorkingView.h"

#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/help/FindBar.h"
#include "desktop/kit/Bind.h"
#include "desktop/kit/FrontWindow.h"

namespace {

/// Keeps the place in sight and the caret while the numbers change.
void Show(QTextBrowser& page, const std::string& html) {
  const int place = page.verticalScrollBar()->value();
  const int line = page.textCursor().blockNumber();
  const int column = page.textCursor().positionInBlock();
  page.setHtml(ToQt(html));
  const QTextBlock block =
      page.document()->findBlockByNumber(std::min(line, page.document()->blockCount() - 1));
  QTextCursor caret(block);
  caret.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor,
                     std::min(column, block.length() - 1));
  page.setTextCursor(caret);
  page.verticalScrollBar()->setValue(place);
}

/// Puts the heading at the top and the caret there, so that it is read from there on.
void GoTo(QTextBrowser& page, const QString& heading) {
  QTextBlock block = page.document()->lastBlock();
  while (block.isValid() && block.text() != heading) block = block.previous();
  if (!block.isValid()) return;
  page.moveCursor(QTextCursor::End);
  page.setTextCursor(QTextCursor(block));
  page.verticalScrollBar()->setValue(page.verticalScrollBar()->value() + page.cursorRect().top());
}

}  // namespace

WorkingView::WorkingView(frmWorking& form, QWidget*) : FormWindow(nullptr) {
  setWindowModality(Qt::NonModal);
  AddMenu(tr("&File"), {{&form.mnuPrint, "p", QKeySequence::Print},
                        {&form.mnuPrintPreview, "v", {}},
                        {&form.mnuFileExport, "e", {}},
                        {},
                        {&form.mnuFileExit, "x", QKeySequence::Close}});
  AddMenu(tr("&Edit"), {{&form.mnuEditCopy, "c", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)},
                        {},
                        {&form.mnuEditFind, "f", QKeySequence::Find}});
  // The same key as opens the window at the notes.
  AddMenu(tr("Vie&w"), {{&form.mnuViewNotes, "n", Qt::Key_F8}});

  auto* const page = Bind::Adopt(form.pgWorking, new QTextBrowser(this));
  page->setAccessibleName(tr("Working"));
  page->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  page->setOpenLinks(false);
  page->setFrameStyle(QFrame::NoFrame);
  page->document()->setDocumentMargin(fontMetrics().height());
  const int em = fontMetrics().height();
  page->document()->setDefaultStyleSheet(
      QStringLiteral(
          "p { margin: %1px 0 } .note { margin: %4px 0 } .equation { margin-left: %2px; text-indent: -%2px }"
          " h2 { margin: %3px 0 %4px 0; font-size: large }"
          " th, td { text-align: left; padding: 0 %5px 0 0 }")
          .arg(em / 8)
          .arg(2 * em)
          .arg(em)
          .arg(em / 4)
          .arg(3 * em / 2));
  Bind::Join(form.pgWorking.Html, page, Show);
  auto* const find = new FindBar(page, this);
  form.pgWorking.FindView = [guarded = QPointer<FindBar>(find)] {
    if (guarded) guarded->Open();
  };
  form.pgWorking.ScrollView = [guarded = QPointer<QTextBrowser>(page)](const std::string& heading) {
    if (guarded) GoTo(*guarded, ToQt(heading));
  };
  auto* const all = new QWidget(this);
  auto* const column = new QVBoxLayout(all);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(page, 1);
  column->addWidget(find);
  setCentralWidget(all);
  page->setFocus();
  SetSize({52, 46});
  LeaveInputsInSight();
}

/// Beside the main window where there is room, else over its results, which the working repeats.
void WorkingView::LeaveInputsInSight() {
  const QWidget* const main = FrontWindow();
  if (main == nullptr) return;
  const QRect room = screen()->availableGeometry();
  const int right = room.right() - width();
  move(std::min(main->frameGeometry().right() + 1, right), std::max(room.top(), main->frameGeometry().top()));
}
