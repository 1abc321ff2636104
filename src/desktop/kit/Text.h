// Conversion of texts between the calculator (UTF-8, positions in characters) and Qt (UTF-16 units).
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "app/Units.h"

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

/// The number of characters in the first `units` units of the text.
inline int CharactersIn(const QString& text, qsizetype units) {
  int characters = 0;
  for (qsizetype i = 0; i < units && i < text.size(); ++characters) {
    i += text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate() ? 2 : 1;
  }
  return characters;
}

/// The units that the first `characters` characters of the text take.
inline int UnitsIn(const QString& text, int characters) {
  qsizetype units = 0;
  for (; characters > 0 && units < text.size(); --characters) {
    units +=
        text[units].isHighSurrogate() && units + 1 < text.size() && text[units + 1].isLowSurrogate() ? 2 : 1;
  }
  return static_cast<int>(units);
}

/// A text with its units as they are printed: "m^3/s" with its exponent raised.
inline QString Printed(std::string_view text) {
  return ToQt(WithRaisedExponents(std::string(text)));
}
