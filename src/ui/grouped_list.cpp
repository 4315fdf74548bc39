#include "ui/grouped_list.h"

#include <QListView>
#include <QStandardItemModel>
#include <string_view>

#include "record/catalogue/graph_groups.h"
#include "record/controls.h"
#include "ui/look.h"

namespace lumivex {

namespace {

constexpr int placeRole = Qt::UserRole;

std::string_view GroupOf(const SelectionList& list, const std::string& item) {
  return list.Name() == "cboGraph" ? GroupOfGraph(item) : "";
}

void AddHeading(QComboBox& box, std::string_view text) {
  auto* heading = new QStandardItem(ToQString(text));
  QFont font = box.font();
  font.setBold(true);
  heading->setFont(font);
  heading->setFlags(Qt::NoItemFlags);
  static_cast<QStandardItemModel*>(box.model())->appendRow(heading);
}

}  // namespace

void FillBox(QComboBox& box, const SelectionList& list) {
  box.clear();
  std::string_view group;
  int place = 0;
  for (const std::string& item : list.Items) {
    if (const auto next = GroupOf(list, item); next != group) {
      group = next;
      if (!group.empty()) AddHeading(box, group);
    }
    box.addItem(ToQString(item), place++);
  }
}

int ItemOfRow(const QComboBox& box, int row) {
  const QVariant place = box.itemData(row, placeRole);
  return place.isValid() ? place.toInt() : -1;
}

int RowOfText(const QComboBox& box, const QString& text) {
  for (int row = 0; row < box.count(); ++row)
    if (box.itemText(row) == text && ItemOfRow(box, row) >= 0) return row;
  return -1;
}

}  // namespace lumivex
