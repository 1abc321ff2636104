// A column of the main window: a heading and rows of label, symbol, box and unit.
#pragma once

#include <QWidget>

#include "app/main/Fields.h"

class BoxEdit;
class QGridLayout;

class FieldPanel : public QWidget {
 public:
  FieldPanel(QWidget* heading, QWidget* parent);

  struct Field {
    Label& Caption;
    TextBox& Box;
    Label* Unit;                 ///< null: the unit is `FixedUnit`
    const char* FixedUnit;       ///< in the place of a unit, for example ":1"
    Wording Symbol;              ///< as in Symbol.h
    std::string_view Mnemonics;  ///< candidates for the mnemonic
    Wording Captions;            ///< that it may have
    QWidget* Switch;             ///< behind the caption; null: none
  };
  BoxEdit* AddField(const Field& field);
  /// A row of its own under the boxes.
  void AddUnderBox(QWidget* widget);

  /// Keeps the numbers in line at their decimal sign.
  void AlignDecimals();

  /// Gives the captions, hidden ones too, and the widest unit their room, so that the columns stay as they
  /// are when others are shown.
  void KeepRoom(int unitWidth);

  /// More room between the rows, in pixels.
  void SetRowGap(int spacing);

 private:
  int Row() const;
  QGridLayout* grid_;
  int captionRoom_ = 0;  // that the widest caption needs
};
