// The contents and the index of a help file: headings that lead to pages.
#pragma once

#include <QList>
#include <QString>

struct HelpTopic {
  QString Title;
  QString Page;   ///< "page.html" or "page.html#place"; empty when the heading leads nowhere itself
  int Level = 0;  ///< 0: on top; deeper by 1 at most than the topic before
};

/// Reads a contents (.hhc) or index (.hhk) file: lists in lists, each entry an object with the parameters
/// "Name" and "Local". Whatever is not of that form is passed over.
QList<HelpTopic> ReadHelpTopics(const QString& text);
