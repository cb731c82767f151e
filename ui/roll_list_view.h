#pragma once
// The rolls of a Dice Roll File, one row each, drawn straight from the file:
// only the rows in view are read, so a file of a hundred million rolls
// scrolls as freely as one of ten. (An item view would keep a position per
// row, hundreds of megabytes for such a file.) One row past the last roll
// stands for the end of the file, where new rolls go.

#include <QAbstractScrollArea>
#include <QByteArray>
#include <QFile>
#include <cstdint>

class RollListView : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit RollListView(QWidget* parent = nullptr);

  // The open file and its length; an empty path shows that none is open.
  // Whatever was read before is read again.
  void ShowFile(const QString& path, int64_t rolls);
  // The caret sits before roll `next`; the selection runs from it to `anchor`.
  void ShowPosition(int64_t next, int64_t anchor, int64_t last);
  // Bit t marks total t (2..12); bit f marks face f (1..6).
  void ShowHighlights(uint16_t totals, uint8_t faces);

  void EnsureVisible(int64_t roll);
  int64_t TopRoll() const;
  int VisibleRows() const;
  QRect RowRect(int64_t roll) const;
  int RowHeight() const;
  // Bytes read from the file so far: what a scroll costs.
  int64_t BytesRead() const { return bytesRead_; }

 signals:
  // `anchor` -1 collapses the selection onto the caret.
  void PositionChosen(int64_t next, int64_t anchor);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int64_t Rows() const { return file_.isOpen() ? rolls_ + 1 : 0; }
  int64_t RollAt(int y) const;
  // The byte of each roll in [first, first + count), read once per refresh.
  const QByteArray& Bytes(int64_t first, int64_t count);
  // Extends the selection from the row it started on to `roll`.
  void ExtendTo(int64_t roll);
  void Move(int64_t next, bool extend);
  void UpdateScrollRange();
  bool Highlighted(int byte) const;

  QFile file_;
  int64_t rolls_ = 0;
  int64_t next_ = 0, anchor_ = 0, last_ = 0;
  uint16_t totals_ = 0;
  uint8_t faces_ = 0;
  QByteArray cache_;
  int64_t cacheFirst_ = 0;
  int64_t bytesRead_ = 0;
};
