// See HelpSearch.h.
#include "desktop/help/HelpSearch.h"

#include <QTextDocument>
#include <algorithm>

namespace {

constexpr int TitleWeight = 20;

}  // namespace

QStringList HelpSearch::Words(const QString& typed) {
  return typed.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void HelpSearch::ReadPages() {
  for (const QString& name : file_.Names(QStringLiteral(".html"))) {
    QTextDocument document;
    document.setHtml(QString::fromUtf8(file_.Read(name)));
    const QString title = document.metaInformation(QTextDocument::DocumentTitle);
    pages_.append({name, title.isEmpty() ? name : title, document.toPlainText()});
  }
}

QList<HelpHit> HelpSearch::Find(const QStringList& words) {
  QList<HelpHit> hits;
  if (words.isEmpty()) return hits;
  if (pages_.isEmpty()) ReadPages();
  for (const Page& page : pages_) {
    HelpHit hit{page.Title, page.Name, 0};
    const bool all = std::all_of(words.begin(), words.end(), [&](const QString& word) {
      const auto count = static_cast<int>(page.Text.count(word, Qt::CaseInsensitive) +
                                          TitleWeight * page.Title.count(word, Qt::CaseInsensitive));
      hit.Score += count;
      return count > 0;
    });
    if (all) hits.append(hit);
  }
  std::stable_sort(hits.begin(), hits.end(),
                   [](const HelpHit& a, const HelpHit& b) { return a.Score > b.Score; });
  return hits;
}
