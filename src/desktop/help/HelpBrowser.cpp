// See HelpBrowser.h.
#include "desktop/help/HelpBrowser.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTextCursor>

#include "desktop/kit/Appearance.h"

HelpBrowser::HelpBrowser(const HelpFile& file, QWidget* parent) : QTextBrowser(parent), file_(file) {
  setAccessibleName(tr("Help page"));
  document()->setDocumentMargin(fontMetrics().height());
  // Always there: else it could come and go with the size of the pictures, which its coming changes.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  TakeColours();
}

// With a scheme of its own no page or picture is ever looked for among the files of the machine.
void HelpBrowser::Go(const QString& page) {
  setSource(QUrl(QLatin1String("help:/") + page));
}

QString HelpBrowser::PageOf(const QUrl& url) {
  return url.path().mid(1);
}

// The pages name no colours, so that they can be read on a light and on a dark desktop.
void HelpBrowser::TakeColours() {
  const QPalette& colours = palette();
  const QColor shade = Appearance::Mixed(colours.color(QPalette::Active, QPalette::Base),
                                         colours.color(QPalette::Active, QPalette::Text), 0.08);
  document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 } th, pre, .note { background-color: %2 }")
                                       .arg(Appearance::Neutral(colours).name(), shade.name()));
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  const QByteArray bytes = file_.Read(PageOf(name));
  switch (type) {
    case QTextDocument::ImageResource: {
      const QImage picture = QImage::fromData(bytes).convertToFormat(QImage::Format_ARGB32_Premultiplied);
      widestPicture_ = qMax(widestPicture_, picture.width());
      pictureRoom_ = PictureRoom();
      return picture.width() <= pictureRoom_ ? picture
                                             : picture.scaledToWidth(pictureRoom_, Qt::SmoothTransformation);
    }
    case QTextDocument::HtmlResource:
      if (bytes.isEmpty()) return tr("<h1>No such page</h1><p>The help file has no page of this name.</p>");
      [[fallthrough]];
    default:
      return QString::fromUtf8(bytes);
  }
}

void HelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
  if (url.scheme().startsWith(QLatin1String("http"))) {
    QDesktopServices::openUrl(url);
    return;
  }
  words_.clear();
  setExtraSelections({});
  widestPicture_ = 0;
  QTextBrowser::doSetSource(url, type);
}

/// The width that a picture can have without being cut off.
int HelpBrowser::PictureRoom() const {
  return qMax(viewport()->width() - 3 * static_cast<int>(document()->documentMargin()), 1);
}

void HelpBrowser::Mark() {
  QList<ExtraSelection> marks;
  ExtraSelection mark;
  mark.format.setBackground(Appearance::Mixed(palette().color(QPalette::Active, QPalette::Base),
                                              QColor(0xFF, 0xC0, 0x00),
                                              Appearance::IsDark(palette()) ? 0.35 : 0.45));
  for (const QString& word : words_) {
    mark.cursor = QTextCursor(document());
    while (!(mark.cursor = document()->find(word, mark.cursor)).isNull()) marks.append(mark);
  }
  setExtraSelections(marks);
}

void HelpBrowser::Highlight(const QStringList& words) {
  words_ = words;
  Mark();
  const QList<ExtraSelection> marks = extraSelections();
  if (marks.isEmpty()) return;
  QTextCursor first = marks.first().cursor;
  for (const ExtraSelection& each : marks) first = qMin(first, each.cursor);
  first.setPosition(first.selectionStart());
  setTextCursor(first);
  ensureCursorVisible();
}

void HelpBrowser::ScaleText(int steps) {
  const double usual = QApplication::font(this).pointSizeF();
  const double now = font().pointSizeF();  // the wheel changes it too
  zoomInF(static_cast<float>((steps == 0 ? usual : qBound(usual / 2, now + steps, usual * 3)) - now));
}

/// Builds the page anew, at the same place.
void HelpBrowser::Redraw() {
  if (source().isEmpty()) return;
  const QStringList words = words_;
  const QScrollBar& bar = *verticalScrollBar();
  const double place = static_cast<double>(bar.value()) / qMax(bar.maximum(), 1);
  reload();
  words_ = words;
  Mark();
  verticalScrollBar()->setValue(qRound(place * bar.maximum()));
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  TakeColours();
  Redraw();
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  if (qMin(widestPicture_, PictureRoom()) != qMin(widestPicture_, pictureRoom_)) Redraw();
}
