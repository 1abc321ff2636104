// See StartFonts.h.
#include "desktop/StartFonts.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <QFont>
#include <memory>

namespace {

/// How the toolkit calls the letters of a desktop that names none. It is no family, and for each style of it
/// the toolkit looks among all fonts.
constexpr char AnyLetters[] = "Sans Serif";

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

/// The family that stands for any letters; empty when there is none.
QString FamilyOfAnyLetters() {
  const Pattern any(FcNameParse(reinterpret_cast<const FcChar8*>(AnyLetters)), FcPatternDestroy);
  FcConfigSubstitute(nullptr, any.get(), FcMatchPattern);
  FcDefaultSubstitute(any.get());
  FcResult result = FcResultNoMatch;
  const Pattern found(FcFontMatch(nullptr, any.get(), &result), FcPatternDestroy);
  FcChar8* family = nullptr;
  if (!found || FcPatternGetString(found.get(), FC_FAMILY, 0, &family) != FcResultMatch) return {};
  return QString::fromUtf8(reinterpret_cast<const char*>(family));
}

}  // namespace

StartFonts::StartFonts() : family_(std::async(std::launch::async, FamilyOfAnyLetters)) {}

void StartFonts::Apply() {
  const QString family = family_.get();
  QFont font = QApplication::font();
  if (family.isEmpty() || font.family() != QLatin1String(AnyLetters)) return;
  font.setFamily(family);
  QApplication::setFont(font);
}
