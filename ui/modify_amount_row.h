#pragma once
// The amount row beside a "Same Bet:" or "Bet:" option: an operator that
// cycles "+", "-", "x", "/", the amount, and the units that cycle "$", "%"
// and the checks. Each row edits its own entry of ModifyOperator,
// ModifyAmount and ModifyUnits through the table at once.

#include <QWidget>

class QLineEdit;
class QPushButton;
class Table;

class ModifyAmountRow : public QWidget {
  Q_OBJECT
 public:
  // `entry` is the index of the three settings; a row without an operator
  // ("Bet:" names the new amount outright) keeps the operator's place empty.
  ModifyAmountRow(Table& table, int entry, bool withOperator, QWidget* parent);

  // Shows the entry as the table holds it; an amount being typed that reads
  // as the table's value is left alone.
  void Refresh();

 private:
  void CycleOperator();
  void CycleUnits();
  void AmountEdited(const QString& text);

  Table& table_;
  int entry_;
  QPushButton* operator_;
  QLineEdit* amount_;
  QPushButton* units_;
};

// The units' caption: "$", "%", or the check's value and " Units".
QString ModifyUnitsCaption(int32_t units, const QString& checkValue);
