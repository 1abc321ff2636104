// See HelpWindow.h.
#include "desktop/help/HelpWindow.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/help/FindBar.h"
#include "desktop/help/HelpBrowser.h"
#include "desktop/help/TopicTree.h"
#include "desktop/kit/EmptyNote.h"
#include "desktop/kit/LineIcon.h"
#include "desktop/kit/ToolBar.h"

HelpWindow::HelpWindow(std::unique_ptr<HelpFile> file)
    : file_(std::move(file)),
      search_(*file_),
      tabs_(new QTabWidget(this)),
      page_(new HelpBrowser(*file_, this)),
      find_(new FindBar(page_, this)) {
  setWindowTitle(tr("Flumewise Help"));
  tabs_->setDocumentMode(true);
  tabs_->setUsesScrollButtons(false);  // but room for all titles
  // Its mnemonics choose a tab, which then has the keyboard.
  tabs_->setFocusPolicy(Qt::NoFocus);
  tabs_->tabBar()->setFocusPolicy(Qt::NoFocus);
  MakeContents();
  MakeIndex();
  MakeSearch();
  tabs_->tabBar()->installEventFilter(this);
  MakeTools();

  auto* const right = new QWidget(this);
  auto* const column = new QVBoxLayout(right);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(page_, 1);
  column->addWidget(find_);
  auto* const middle = new QSplitter(this);
  middle->addWidget(tabs_);
  middle->addWidget(right);
  middle->setStretchFactor(1, 1);
  middle->setChildrenCollapsible(false);
  setCentralWidget(middle);

  const int em = fontMetrics().height();
  resize((QSize(76, 46) * em).boundedTo(screen()->availableSize() - QSize(em / 2, 2 * em)));
  middle->setSizes({width() * 3 / 10, width() * 7 / 10});
}

// The page shows what stands in the file, so it goes first.
HelpWindow::~HelpWindow() {
  delete takeCentralWidget();
}

QList<HelpTopic> HelpWindow::Topics(const QString& suffix) const {
  QList<HelpTopic> topics;
  for (const QString& name : file_->Names(suffix))
    topics += ReadHelpTopics(QString::fromUtf8(file_->Read(name)));
  return topics;
}

void HelpWindow::MakeContents() {
  const QList<HelpTopic> topics = Topics(QStringLiteral(".hhc"));
  contents_ = new TopicTree(
      tr("Contents"), [this](const QString& page) { page_->Go(page); }, tabs_);
  contents_->Show(topics);
  contents_->expandToDepth(0);
  tabs_->addTab(contents_, tr("&Contents"));
  entries_.append(contents_);
  connect(page_, &QTextBrowser::sourceChanged, contents_,
          [this](const QUrl& url) { contents_->Select(HelpBrowser::PageOf(url)); });
  const auto first = std::find_if(topics.begin(), topics.end(),
                                  [](const HelpTopic& topic) { return !topic.Page.isEmpty(); });
  home_ = first == topics.end() ? file_->Names(QStringLiteral(".html")).value(0) : first->Page;
}

void HelpWindow::AddTab(const QString& title, const QString& caption, QLineEdit* line, TopicTree* tree) {
  auto* const tab = new QWidget(tabs_);
  auto* const column = new QVBoxLayout(tab);
  auto* const label = new QLabel(caption, tab);
  label->setBuddy(line);
  column->addWidget(label);
  column->addWidget(line);
  column->addWidget(tree, 1);
  connect(line, &QLineEdit::returnPressed, tree, &TopicTree::OpenCurrent);
  tabs_->addTab(tab, title);
  entries_.append(line);
}

void HelpWindow::MakeIndex() {
  filter_ = new QLineEdit(tabs_);
  filter_->setClearButtonEnabled(true);
  index_ = new TopicTree(
      tr("Index"), [this](const QString& page) { page_->Go(page); }, tabs_);
  index_->Show(Topics(QStringLiteral(".hhk")));
  index_->expandAll();
  connect(filter_, &QLineEdit::textChanged, index_, &TopicTree::Filter);
  AddTab(tr("&Index"), tr("&Keyword"), filter_, index_);
}

void HelpWindow::MakeSearch() {
  words_ = new QLineEdit(tabs_);
  words_->setClearButtonEnabled(true);
  const auto open = [this](const QString& page) {
    page_->Go(page);
    page_->Highlight(HelpSearch::Words(words_->text()));
  };
  hits_ = new TopicTree(tr("Pages found"), open, tabs_);
  auto* const note = new EmptyNote(hits_->viewport());
  connect(words_, &QLineEdit::textChanged, hits_, [this, note] {
    const QStringList words = HelpSearch::Words(words_->text());
    QList<HelpTopic> topics;
    for (const HelpHit& hit : search_.Find(words)) topics.append({hit.Title, hit.Page});
    hits_->Show(topics);
    note->Explain(topics.isEmpty() && !words.isEmpty() ? tr("No page has all of these words.") : QString());
  });
  AddTab(tr("&Search"), tr("&Words"), words_, hits_);
}

void HelpWindow::MakeTools() {
  QToolBar* const bar = MakeToolBar(*this);
  const auto add = [this](const QString& text, const QList<QKeySequence>& keys, auto run) {
    auto* const action = new QAction(text, this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, page_, run);
    addAction(action);
    return action;
  };
  const auto tool = [bar](QAction* action, const char* icon) {
    action->setIcon(LineIcon(icon));
    action->setToolTip(action->text() +
                       QStringLiteral(" (%1)").arg(action->shortcut().toString(QKeySequence::NativeText)));
    bar->addAction(action);
  };
  using Keys = QKeySequence;
  QAction* const back = add(tr("Back"), Keys::keyBindings(Keys::Back), [this] { page_->backward(); });
  QAction* const forward = add(tr("Forward"), Keys::keyBindings(Keys::Forward), [this] { page_->forward(); });
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  back->setEnabled(false);
  forward->setEnabled(false);
  tool(back, "back");
  tool(forward, "forward");
  tool(add(tr("Home"), {Keys(Qt::ALT | Qt::Key_Home)}, [this] { GoHome(); }), "home");
  bar->addSeparator();
  tool(add(tr("Find"), {Keys(Keys::Find)}, [this] { find_->Open(); }), "find");
  add(tr("Find next"), {Keys(Qt::Key_F3)}, [this] { find_->FindNext(); });
  add(tr("Find previous"), {Keys(Qt::SHIFT | Qt::Key_F3)}, [this] { find_->FindPrevious(); });
  bar->addSeparator();
  tool(add(tr("Smaller"), {Keys(Keys::ZoomOut)}, [this] { page_->ScaleText(-1); }), "smaller");
  // "+" is above "=" on many keyboards.
  tool(add(tr("Larger"), {Keys(Keys::ZoomIn), Keys(Qt::CTRL | Qt::Key_Equal)},
           [this] { page_->ScaleText(1); }),
       "larger");
  add(tr("Normal size"), {Keys(Qt::CTRL | Qt::Key_0)}, [this] { page_->ScaleText(0); });
}

void HelpWindow::GoHome() {
  page_->Go(home_);
}

void HelpWindow::BringToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpWindow::ShowContents() {
  ShowTab(contents_);
}

void HelpWindow::ShowIndex() {
  ShowTab(filter_);
}

void HelpWindow::ShowTab(QWidget* entry) {
  tabs_->setCurrentIndex(static_cast<int>(entries_.indexOf(entry)));
  if (page_->source().isEmpty()) GoHome();
  BringToFront();
  entry->setFocus();
}

void HelpWindow::ShowPage(const QString& page, const QString& place) {
  if (!file_->Read(page).isEmpty()) {
    page_->Go(place.isEmpty() ? page : page + QLatin1Char('#') + place);
  } else if (page_->source().isEmpty()) {
    GoHome();
  }
  BringToFront();
  page_->setFocus();
}

/// A tab that is chosen, by its mnemonic or the mouse, has the keyboard, also when it was in front already.
bool HelpWindow::eventFilter(QObject* tabBar, QEvent* event) {
  if (event->type() == QEvent::Shortcut || event->type() == QEvent::MouseButtonRelease)
    QTimer::singleShot(0, this, [this] { entries_[tabs_->currentIndex()]->setFocus(); });
  return QMainWindow::eventFilter(tabBar, event);
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) close();
  QMainWindow::keyPressEvent(event);
}
