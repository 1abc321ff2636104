// See ExactNameDialog.h.
#include "desktop/shell/ExactNameDialog.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>

QString ExactNameDialog::Path() const {
  return quoted_.isEmpty() ? selectedFiles().value(0) : quoted_;
}

void ExactNameDialog::accept() {
  // A dialog of the desktop has no such box.
  const auto* const box = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (box != nullptr && box->text().contains(u'"')) {
    TakeQuoted(box->text());
  } else {
    QFileDialog::accept();
  }
}

void ExactNameDialog::TakeQuoted(const QString& typed) {
  QString path = directory().absoluteFilePath(
      typed.startsWith(QLatin1String("~/")) ? QDir::homePath() + typed.mid(1) : typed);
  if (QFileInfo(path).isDir()) {
    setDirectory(path);
    selectFile({});
    return;
  }
  if (acceptMode() == AcceptSave && !defaultSuffix().isEmpty() && !QFileInfo(path).fileName().contains(u'.'))
    path += u'.' + defaultSuffix();
  if (!MayTake(path)) return;
  quoted_ = path;
  done(Accepted);
}

bool ExactNameDialog::MayTake(const QString& path) {
  const QFileInfo file(path);
  if (acceptMode() == AcceptSave) {
    return !file.exists() ||
           QMessageBox::warning(this, windowTitle(),
                                tr("%1 already exists.\nDo you want to replace it?").arg(file.fileName()),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
  }
  if (!file.exists()) {
    QMessageBox::warning(
        this, windowTitle(),
        tr("%1\nFile not found.\nPlease verify the correct file name was given.").arg(file.fileName()));
  }
  return file.exists();
}
