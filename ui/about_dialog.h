#pragma once
// "About Dicemill": the name, the version, what the program is and what it
// is built with.

#include <QDialog>
#include <QString>

class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(const QString& version, QWidget* parent = nullptr);
};
