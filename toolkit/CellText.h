/// Rows of cells as a text, as spreadsheets put them on the clipboard.
#pragma once

#include "toolkit/core/Text.h"

using CellRow = std::vector<String>;

/// The rows of a text: tabs between cells, line ends between rows; a line end at the end of the text is none.
///
/// A cell that stands in quotes, with each quote inside doubled, may hold both: there they become blanks, and line ends
/// behind its last character go. A text without tab and line end is one cell as it stands.
/// Example: "a\t\"b\nc\"\n" is one row of the cells "a" and "b c".
std::vector<CellRow> RowsOf(StringView text);

/// The text that `RowsOf` makes these rows of, each with a line end. Only a cell that begins with a quote stands in
/// quotes.
String TextOfRow(const CellRow& row);
