// Finds words in all pages of a help file.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "desktop/help/HelpFile.h"

struct HelpHit {
  QString Title;  ///< of the page
  QString Page;
  int Score = 0;  ///< how often the words stand on the page; in its title they count for more
};

class HelpSearch {
 public:
  /// The file must outlive the search.
  explicit HelpSearch(const HelpFile& file) : file_(file) {}

  /// The words of what the user typed: blanks part them, and upper and lower case are the same.
  static QStringList Words(const QString& typed);
  /// The pages that have every word, whole or as a part of one, the best first; none without a word.
  QList<HelpHit> Find(const QStringList& words);

 private:
  struct Page {
    QString Name, Title, Text;
  };
  void ReadPages();

  const HelpFile& file_;
  QList<Page> pages_;  // read at the first search
};
