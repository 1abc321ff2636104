// See WorkingView.h.
#include "desktop/working/WorkingView.h"

#include <QScrollBar>
#include <QTextBrowser>
#include <QTextDocument>

#include "desktop/kit/Bind.h"

WorkingView::WorkingView(frmWorking& form, QWidget*) : FormWindow(nullptr) {
  setWindowModality(Qt::NonModal);
  AddMenu(tr("&File"), {{&form.mnuPrint, "p", QKeySequence::Print},
                        {&form.mnuPrintPreview, "v", {}},
                        {&form.mnuFileExport, "e", {}},
                        {},
                        {&form.mnuFileExit, "x", QKeySequence::Close}});
  AddMenu(tr("&Edit"), {{&form.mnuEditCopy, "c", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)}});

  auto* const page = Bind::Adopt(form.pgWorking, new QTextBrowser(this));
  page->setAccessibleName(tr("Working"));
  page->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  page->setOpenLinks(false);
  page->document()->setDocumentMargin(fontMetrics().height());
  page->document()->setDefaultStyleSheet(
      QStringLiteral("p { margin: 2px 0 } h2 { margin: 14px 0 4px 0; font-size: large }"
                     " th, td { text-align: left; padding-right: 12px }"));
  // The same place stays in sight while the numbers change.
  Bind::Join(form.pgWorking.Html, page, [](QTextBrowser& w, const std::string& html) {
    const int place = w.verticalScrollBar()->value();
    w.setHtml(ToQt(html));
    w.verticalScrollBar()->setValue(place);
  });
  form.pgWorking.ScrollView = [guarded = QPointer<QTextBrowser>(page)](const std::string& anchor) {
    if (guarded) guarded->scrollToAnchor(ToQt(anchor));
  };
  setCentralWidget(page);
  page->setFocus();
  SetSize({52, 46});
}
