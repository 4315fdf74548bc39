#pragma once

#include <QString>
#include <functional>
#include <map>
#include <vector>

#include "record/form.h"
#include "record/layout/menu_tree.h"

class QAction;
class QMenu;
class QMenuBar;

namespace lumivex {

/// The menu bar, built from its description; captions, ticks, visibility and availability follow the menu entries.
class MenuView {
 public:
  /// @param rows    the entries, of that form.
  /// @param clicks  called with the entry that the user chose.
  MenuView(QMenuBar& bar, Form& form, const std::vector<MenuRow>& rows, const std::function<void(Control&)>& clicks);

  /// Shows every entry as it is now.
  void Sync();
  /// The action of an entry, null where the menu does not offer it.
  QAction* ActionOf(const MenuEntry& entry) const;
  /// The menu of a path, as "Light/Spectrum"; null where the bar does not have it.
  QMenu* MenuAt(const QString& path) const { return menus_.contains(path) ? menus_.at(path) : nullptr; }

 private:
  struct Item {
    MenuEntry* entry;
    QAction* action;
    bool isSubmenu;
  };
  QMenu* MenuOf(QMenuBar& bar, const QString& path);
  void MarkKeys(QMenuBar& bar) const;

  std::map<QString, QMenu*> menus_;
  std::vector<Item> items_;
};

}  // namespace lumivex
