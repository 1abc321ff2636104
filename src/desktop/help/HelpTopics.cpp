// See HelpTopics.h.
#include "desktop/help/HelpTopics.h"

#include <QHash>
#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace {

/// The attributes of a tag, their names in lower case.
QHash<QString, QString> Attributes(const QString& tag) {
  static const QRegularExpression attribute(QStringLiteral(R"re(([a-z]+)\s*=\s*"([^"]*)")re"),
                                            QRegularExpression::CaseInsensitiveOption);
  QHash<QString, QString> attributes;
  for (auto each = attribute.globalMatch(tag); each.hasNext();) {
    const QRegularExpressionMatch match = each.next();
    // Entities such as &amp; and &#8212; are spelled out.
    attributes[match.captured(1).toLower()] =
        QTextDocumentFragment::fromHtml(match.captured(2)).toPlainText().simplified();
  }
  return attributes;
}

}  // namespace

QList<HelpTopic> ReadHelpTopics(const QString& text) {
  static const QRegularExpression tag(QStringLiteral("<(/?)(ul|object|param)\\b([^>]*)>"),
                                      QRegularExpression::CaseInsensitiveOption);
  QList<HelpTopic> topics;
  HelpTopic topic;
  int depth = 0;
  for (auto each = tag.globalMatch(text); each.hasNext();) {
    const QRegularExpressionMatch match = each.next();
    const bool ends = !match.captured(1).isEmpty();
    const QString kind = match.captured(2).toLower();
    if (kind == QLatin1String("ul")) {
      depth = qMax(depth + (ends ? -1 : 1), 0);
    } else if (kind == QLatin1String("param")) {
      const QHash<QString, QString> attributes = Attributes(match.captured(3));
      const QString name = attributes.value(QStringLiteral("name")).toLower();
      const QString value = attributes.value(QStringLiteral("value"));
      if (name == QLatin1String("name") && topic.Title.isEmpty()) topic.Title = value;
      if (name == QLatin1String("local") && topic.Page.isEmpty()) topic.Page = value;
    } else if (!ends) {
      topic = {};
    } else if (!topic.Title.isEmpty()) {
      topic.Level = qBound(0, depth - 1, topics.isEmpty() ? 0 : topics.last().Level + 1);
      topics.append(topic);
      topic = {};
    }
  }
  return topics;
}
