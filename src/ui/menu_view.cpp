#include "ui/menu_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "ui/look.h"

namespace lumivex {

namespace {

MenuEntry* EntryOf(Form& form, std::string_view name) {
  Control* control = form.Find(name);
  return control && control->Kind() == ControlKind::MenuEntry ? static_cast<MenuEntry*>(control) : nullptr;
}

}  // namespace

MenuView::MenuView(QMenuBar& bar, Form& form, const std::vector<MenuRow>& rows,
                   const std::function<void(Control&)>& clicks) {
  for (const auto& row : rows) {
    MenuEntry* entry = EntryOf(form, row.entry);
    if (!entry && row.entry != "-") continue;
    QMenu* menu = MenuOf(bar, ToQString(row.path));
    if (!entry) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(ShownText(entry->Caption));
    action->setObjectName(ToQString(entry->Name()));
    if (!row.shortcut.empty()) action->setShortcut(QKeySequence(ToQString(row.shortcut)));
    QObject::connect(action, &QAction::triggered, action, [entry, clicks] { clicks(*entry); });
    items_.push_back({entry, action, false});
  }
  for (const auto& row : Submenus()) {
    const auto menu = menus_.find(ToQString(row.path));
    if (MenuEntry* entry = EntryOf(form, row.entry); entry && menu != menus_.end())
      items_.push_back({entry, menu->second->menuAction(), true});
  }
  MarkKeys(bar);
  Sync();
}

QMenu* MenuView::MenuOf(QMenuBar& bar, const QString& path) {
  QMenu*& menu = menus_[path];
  if (menu) return menu;
  const auto cut = path.lastIndexOf('/');
  const QString title = path.mid(cut + 1);
  menu = cut < 0 ? bar.addMenu(title) : MenuOf(bar, path.left(cut))->addMenu(title);
  menu->setSeparatorsCollapsible(true);
  menu->setToolTipsVisible(true);
  return menu;
}

void MenuView::MarkKeys(QMenuBar& bar) const {
  // The first letter that no menu before it has taken.
  QString taken;
  for (QAction* top : bar.actions()) {
    QString title = top->text();
    for (qsizetype i = 0; i < title.size(); ++i) {
      const QChar letter = title[i].toLower();
      if (!letter.isLetter() || taken.contains(letter)) continue;
      taken += letter;
      top->setText(title.insert(i, '&'));
      break;
    }
  }
}

void MenuView::Sync() {
  for (const auto& [entry, action, isSubmenu] : items_) {
    // A tick once shown keeps its column: an entry that was ever on is one that can be on.
    if (entry->Checked && !isSubmenu) action->setCheckable(true);
    if (action->isCheckable()) action->setChecked(entry->Checked);
    action->setEnabled(entry->Enabled);
    action->setVisible(entry->Visible);
    if (isSubmenu) continue;
    if (const QString text = ShownText(entry->Caption); action->text() != text) action->setText(text);
    if (const QString tip = ToQString(entry->Tip); action->statusTip() != tip) {
      action->setToolTip(tip);
      action->setStatusTip(tip);
    }
  }
}

QAction* MenuView::ActionOf(const MenuEntry& entry) const {
  for (const auto& item : items_)
    if (item.entry == &entry) return item.action;
  return nullptr;
}

}  // namespace lumivex
