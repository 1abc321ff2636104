// Numbers below each other, their decimal signs in line.
#pragma once

#include <QObject>
#include <vector>

class QLineEdit;

class DecimalColumn : public QObject {
 public:
  using QObject::QObject;

  /// A box whose text is aligned to the right.
  void Add(QLineEdit* box);

 protected:
  bool eventFilter(QObject* box, QEvent* event) override;

 private:
  struct Number {
    QLineEdit* Box;
    int Width = 0;     ///< of the text (pixels)
    int Fraction = 0;  ///< of its part from the decimal sign on
  };
  static void Measure(Number& number);
  void Measure(const QObject* box);
  void Align();

  std::vector<Number> numbers_;
};
