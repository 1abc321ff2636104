// See QtServices.h.
#include "desktop/shell/QtServices.h"

#include <QClipboard>
#include <QDate>
#include <QDir>
#include <QGuiApplication>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>

#include "desktop/kit/FrontWindow.h"
#include "desktop/kit/Text.h"
#include "desktop/shell/ExactNameDialog.h"

namespace {

/// Every line end as CR LF: other programs put lone LFs on the clipboard and take a lone CR for a character.
QString WithCrLf(QString text) {
  const QLatin1String crLf("\r\n");
  return text.replace(crLf, QLatin1String("\n")).replace(u'\r', u'\n').replace(QLatin1String("\n"), crLf);
}

QMessageBox::StandardButtons Buttons(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

}  // namespace

void QtClipboard::Clear() {
  QGuiApplication::clipboard()->clear();
}

std::string QtClipboard::Text() {
  return FromQt(WithCrLf(QGuiApplication::clipboard()->text()));
}

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setText(WithCrLf(ToQt(text)));
}

void QtClipboard::SetPage(const std::string& text, const std::string& html) {
  auto* const page = new QMimeData;
  page->setText(WithCrLf(ToQt(text)));
  page->setHtml(ToQt(html));
  QGuiApplication::clipboard()->setMimeData(page);
}

BoxAnswer QtMessageBox::Show(const std::string& text, const std::string& title, BoxIcon icon,
                             BoxButtons buttons) {
  QMessageBox box(icon == BoxIcon::Exclamation ? QMessageBox::Warning : QMessageBox::Information, ToQt(title),
                  ToQt(text), Buttons(buttons), FrontWindow());
  // Where only Yes and No can be answered, Yes gives something up.
  if (buttons == BoxButtons::YesNo) box.setDefaultButton(QMessageBox::No);
  SetUpBox(box);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return BoxAnswer::Yes;
    case QMessageBox::No:
      return BoxAnswer::No;
    default:
      return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel;
  }
}

namespace {

/// "Text (*.txt)|*.txt|All Files (*.*)|*.*" as Qt spells it; "*.*" is every file, also one without a suffix.
QStringList NameFilters(const std::string& filter) {
  QStringList filters;
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' ')).replace(QLatin1String("*.*"), QLatin1String("*"));
    filters << parts[i].section(QLatin1String(" ("), 0, 0) + QLatin1String(" (") + patterns +
                   QLatin1Char(')');
  }
  return filters;
}

/// The suffix of the first pattern of a filter as Qt spells it; empty for every file.
QString SuffixOf(const QString& nameFilter) {
  const QString patterns = nameFilter.section(QLatin1Char('('), -1).chopped(1);
  return patterns.section(QLatin1Char(' '), 0, 0).section(QLatin1Char('.'), 1);
}

}  // namespace

std::optional<std::string> QtFileDialog::Choose(const FileDialogRequest& request) {
  const QString folder = ToQt(request.Folder);
  ExactNameDialog dialog(FrontWindow(), ToQt(request.Title),
                         !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath());
  dialog.setWindowModality(Qt::WindowModal);
  dialog.setNameFilters(NameFilters(request.Filter));
  dialog.setAcceptMode(request.Saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.Saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (request.Saving) {
    // A name typed without a suffix gets that of the kind chosen last.
    const auto setSuffix = [&dialog](const QString& nameFilter) {
      if (const QString suffix = SuffixOf(nameFilter); !suffix.isEmpty()) dialog.setDefaultSuffix(suffix);
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, setSuffix);
    setSuffix(dialog.nameFilters().first());
  }
  if (!request.FileName.empty()) dialog.selectFile(ToQt(request.FileName));
  if (dialog.exec() != QDialog::Accepted || dialog.Path().isEmpty()) return std::nullopt;
  return FromQt(dialog.Path());
}

std::string QtClock::ShortDate() {
  return FromQt(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

bool QtProgress::Show(const std::string& text, int done, int total) {
  if (done >= total) {
    dialog_.reset();
    return true;
  }
  if (!dialog_) {
    dialog_ =
        std::make_unique<QProgressDialog>(ToQt(text), QProgressDialog::tr("Cancel"), 0, total, FrontWindow());
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->setMinimumDuration(200);  // ms: what takes longer is felt, and can be cancelled
    dialog_->setValue(0);              // starts its clock
  }
  dialog_->setValue(done);
  const bool goesOn = !dialog_->wasCanceled();
  if (!goesOn) dialog_.reset();
  return goesOn;
}
