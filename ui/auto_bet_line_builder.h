#pragma once
// Builds one script line from choice lists, never from typed source: the
// kind of line first, then what that kind allows (subject, comparison or
// verb, then amount, target, flag or label). Separators can't be chosen.

#include <QWidget>

#include "engine/script_line.h"
#include "script/catalogue.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

class LineBuilder : public QWidget {
  Q_OBJECT
 public:
  explicit LineBuilder(QWidget* parent = nullptr);

  // The line as chosen, its Text rendered from its codes.
  ScriptLine Line() const;
  // Shows a line's choices so it can be changed.
  void Load(const ScriptLine& line);

  // Each step of the line, named for tests and for the screen's picture.
  QComboBox* Kind() const { return kind_; }
  QComboBox* First() const { return first_; }    // subject or verb
  QComboBox* Second() const { return second_; }  // comparison, point, truth or handling
  QComboBox* Source() const { return source_; }
  QComboBox* Target() const { return target_; }
  QLineEdit* Amount() const { return amount_; }
  QLineEdit* NameField() const { return name_; }

  // Picks the entry of that code; false when the list has none (or it is a separator).
  static bool Choose(QComboBox* list, int code);
  static int CodeOf(const QComboBox* list);

 signals:
  void Changed();

 private:
  void KindChosen();
  void FirstChosen();
  void SecondChosen();
  void ShowFields();
  void Preview();

  QComboBox *kind_, *first_, *second_, *source_, *target_, *round_;
  QLineEdit *amount_, *name_;
  QSpinBox *subjectNum_, *targetNum_;
  QLabel* preview_;
  bool loading_ = false;
};
