#pragma once

#include <QComboBox>
#include <string>
#include <vector>

namespace lumivex {

class SelectionList;

// A list of a form in a box, with headings between its groups where it has such. Headings cannot be chosen, and are no
// items of the form's list: places count without them.

/// Fills the box with items, and with headings where the list's groups change.
void FillBox(QComboBox& box, const SelectionList& list);

/// The item of a row of the box, from 0; -1 for a heading.
int ItemOfRow(const QComboBox& box, int row);

/// The row with an item of this text, capitals as they are; -1 where there is none.
int RowOfText(const QComboBox& box, const QString& text);

}  // namespace lumivex
