// See AboutView.h.
#include "desktop/help/AboutView.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>

#include "desktop/kit/Appearance.h"
#include "desktop/kit/Bind.h"

namespace {

/// The text with its lines kept and its addresses as links.
QString WithLinks(const QString& text, const QPalette& palette) {
  static const QRegularExpression address(QStringLiteral("(https?://[^\\s)]+)"));
  return text.toHtmlEscaped()
      .replace(address, QStringLiteral("<a style=\"color: %1\" href=\"\\1\">\\1</a>")
                            .arg(Appearance::Neutral(palette).name()))
      .replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QLabel* Paragraph(Label& label, QWidget* parent) {
  QLabel* const text = Bind::Caption(label, parent);
  text->setTextFormat(Qt::RichText);
  text->setText(WithLinks(text->text(), text->palette()));
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  text->setOpenExternalLinks(true);
  const int em = text->fontMetrics().height();
  text->setMinimumWidth(
      qMin(text->fontMetrics().averageCharWidth() * 78, text->screen()->availableSize().width() - 6 * em));
  return text;
}

}  // namespace

AboutView::AboutView(frmAbout& form, QWidget* parent) : FormDialog(form, parent) {
  const int em = fontMetrics().height();
  auto* const head = new QHBoxLayout;
  head->setSpacing(em);
  auto* const picture = new QLabel(this);
  picture->setPixmap(QApplication::windowIcon().pixmap(4 * em));
  picture->setAccessibleName(tr("The icon of Flumewise"));
  head->addWidget(picture);
  auto* const titles = new QVBoxLayout;
  QLabel* const name = Bind::Caption(form.lblName, this);
  QFont large = name->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  large.setBold(true);
  name->setFont(large);
  titles->addWidget(name);
  QLabel* const version = Bind::Caption(form.lblVersion, this);
  version->setTextInteractionFlags(Qt::TextSelectableByMouse);
  titles->addWidget(version);
  head->addLayout(titles, 1);
  Column().addLayout(head);
  Column().setSpacing(em);
  for (Label* const text : {&form.lblPurpose, &form.lblLicence, &form.lblLibraries})
    Column().addWidget(Paragraph(*text, this));
  QPushButton* const ok = Bind::Push(form.cmdOK, this);
  AddButtons(ok);
  ok->setFocus();
}
