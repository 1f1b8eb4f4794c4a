#include "platform/qt/completion_list.h"

#include <QScreen>
#include <algorithm>

namespace {

constexpr int kRowsShown = 10;
constexpr int kRowsMeasured = 100;

}  // namespace

CompletionList::CompletionList(const QWidget& field) : QListView(field.window()), field_(field) {
  // The one type of window that no window manager gives the focus.
  setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setProperty("windowKind", QStringLiteral("completion"));
  setFocusPolicy(Qt::NoFocus);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideMiddle);
  setModel(&model_);
}

void CompletionList::Open(const QStringList& rows) {
  setFont(field_.font());
  setAccessibleName(field_.accessibleName());
  model_.setStringList(rows);
  scrollToTop();
  const QRect screen = field_.screen()->availableGeometry();
  const QRect place(field_.mapToGlobal(QPoint()), field_.size());
  const int below = screen.bottom() - place.bottom();
  const int above = place.top() - screen.top();
  QSize size = SizeFor(rows, std::max(below, above));
  size.setWidth(std::min(size.width(), screen.width()));
  const int x = std::min(place.left(), screen.right() + 1 - size.width());
  const bool fitsBelow = size.height() <= below;
  const int y = fitsBelow ? place.bottom() + 1 : place.top() - size.height();
  setGeometry(QRect(QPoint(std::max(x, screen.left()), y), size));
  show();
}

void CompletionList::Highlight(int row) {
  setCurrentIndex(model_.index(row));
  if (row < 0) clearSelection();
}

QSize CompletionList::SizeFor(const QStringList& rows, int room) const {
  const int border = 2 * frameWidth();
  const int rowHeight = std::max(sizeHintForRow(0), 1);
  const auto count = std::min<qsizetype>(rows.size(), kRowsShown);
  const int height = std::min(static_cast<int>(count) * rowHeight + border, room);
  int widest = 0;
  for (const QString& row : rows.mid(0, kRowsMeasured)) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(row));
  }
  const int margins = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + rowHeight + border;
  return {std::max(field_.width(), widest + margins), height};
}
