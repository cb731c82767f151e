#pragma once
// Driving a Configure page as a player does: typing into a box and leaving
// it, clicking a control found by its object name.

#include <QAbstractButton>
#include <QLineEdit>
#include <QString>
#include <gtest/gtest.h>

template <class T>
T* Control(QWidget& page, const char* name) {
  auto* found = page.findChild<T*>(QString::fromLatin1(name));
  EXPECT_NE(found, nullptr) << name;
  return found;
}

// The text typed over the box's own, then committed as Enter or Tab commits it.
inline void Type(QWidget& page, const char* box, const QString& text) {
  QLineEdit* edit = Control<QLineEdit>(page, box);
  edit->setText(text);
  edit->setModified(true);
  emit edit->editingFinished();
}

inline void Click(QWidget& page, const char* name) { Control<QAbstractButton>(page, name)->click(); }
