#pragma once

// The widget of a combo box: one row high, and its dropped list reports to the peer. Private to the
// platform layer.

#include <QComboBox>

class ComboWidget final : public QComboBox {
 public:
  ComboWidget(bool editable, QWidget* parent);

  void showPopup() override;
  /// Least width of the dropped list in pixels.
  void SetListWidth(int width) { listWidth_ = width; }
  /// Highlights a row of the dropped list; -1 highlights none.
  void Highlight(int row);

  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  void changeEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void initStyleOption(QStyleOptionComboBox* option) const override;

 private:
  void WatchList();
  bool OnListKey(const QKeyEvent& event);
  void OnListFocusOut();

  int listWidth_ = 0;
  bool listWatched_ = false;
  bool opening_ = false;
};
