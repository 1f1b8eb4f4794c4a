#include "host/drive/list_rows.h"

#include <QJsonArray>

#include "host/drive/control_actions.h"
#include "host/drive/control_finder.h"
#include "host/drive/input.h"
#include "host/drive/request.h"
#include "host/drive/request_error.h"
#include "platform/qt/list_peer.h"

namespace {

ListPeer& ListOf(QWidget* control, const QString& verb) {
  if (auto* peer = dynamic_cast<ListPeer*>(FindPeer(control))) return *peer;
  CheckKind(control, QString(), verb);
  throw RequestError(QStringLiteral("%1 has no rows.").arg(NameControl(control)));
}

void CheckRowExists(const ListPeer& list, int row) {
  if (list.Rows().Has(row)) return;
  throw RequestError(QStringLiteral("There is no row %1 in %2; it has %3 rows.")
                         .arg(row)
                         .arg(NameControl(list.widget))
                         .arg(list.Rows().Count()));
}

QJsonObject DescribeRow(const ListPeer& list, int row) {
  const ListModel& rows = list.Rows();
  QJsonArray text;
  for (int column = 0; column < rows.columnCount(); ++column) text << rows.Text(row, column);
  return {{"text", text},
          {"checked", rows.HasCheckBoxes() ? QJsonValue(rows.Checked(row)) : QJsonValue()},
          {"selected", (list.State(row) & LVIS_SELECTED) != 0}};
}

// Where a row is clicked: at the middle of what is seen of its label.
QPoint LabelOf(const ListView& view, int row) {
  QRect label = view.CellRect(view.RowRect(row), 0).intersected(view.viewport()->rect());
  const QRect box = view.CheckBoxRect(row);
  if (!box.isEmpty()) label.setLeft(qMin(box.right() + 1, label.right()));
  return label.center();
}

// The place furthest from the rows that is still inside.
QPoint EmptySpace(const ListView& view) {
  const QPoint place = view.viewport()->rect().bottomRight() - QPoint(1, 1);
  if (view.RowAt(place) < 0) return place;
  throw RequestError(QStringLiteral("A person cannot click below the rows of %1: they fill it.")
                         .arg(NameControl(&view)));
}

}  // namespace

QJsonObject DescribeRows(QWidget* control) {
  const ListPeer& list = ListOf(control, QStringLiteral("rows"));
  QJsonArray columns, widths, rows;
  for (int column = 0; column < list.Rows().Headings(); ++column) {
    columns << list.Rows().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    widths << list.ColumnWidth(column);
  }
  for (int row = 0; row < list.Rows().Count(); ++row) rows << DescribeRow(list, row);
  return {{"columns", columns}, {"widths", widths}, {"rows", rows}};
}

void CheckRow(QWidget* control, int row, bool on) {
  const ListPeer& list = ListOf(control, QStringLiteral("check"));
  CheckRowExists(list, row);
  if (!list.Rows().HasCheckBoxes()) {
    throw RequestError(
        QStringLiteral("The rows of %1 have no check boxes.").arg(NameControl(control)));
  }
  if (list.Rows().Checked(row) == on) return;
  list.View().scrollTo(list.Rows().index(row, 0));
  ClickAt(list.View().viewport(), list.View().CheckBoxRect(row).center());
}

void ActOnRow(QWidget* control, int row, const QString& action) {
  static const struct {
    const char* name;
    void (*act)(QWidget*, const QPoint&);
  } kActions[] = {{"select", ClickAt}, {"double", DoubleClickAt}, {"context", RightClickAt}};
  const ListPeer& list = ListOf(control, QStringLiteral("row"));
  if (row != -1) CheckRowExists(list, row);
  QStringList names;
  for (const auto& known : kActions) {
    names << QLatin1String(known.name);
    if (action != names.back()) continue;
    ListView& view = list.View();
    if (row != -1) view.scrollTo(list.Rows().index(row, 0));
    return known.act(view.viewport(), row == -1 ? EmptySpace(view) : LabelOf(view, row));
  }
  throw RequestError(QStringLiteral("There is no action \"%1\"; there are %2.")
                         .arg(action, NearCandidates(action, names)));
}
