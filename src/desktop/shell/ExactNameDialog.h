// The toolkit's file dialog, which also takes names with double quotes as they are typed.
#pragma once

#include <QFileDialog>

/// The toolkit's own dialog reads double quotes as the ends of several names: 18" pipe would be " pipe".
class ExactNameDialog : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  /// The path chosen.
  QString Path() const;
  void accept() override;

 private:
  bool MayTake(const QString& path);
  void TakeQuoted(const QString& typed);

  QString quoted_;
};
