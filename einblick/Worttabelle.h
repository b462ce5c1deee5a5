#pragma once

class QAbstractItemModel;
class QTableView;

/// Tables of whole rows whose words are broken into lines where a sheet is narrow, and never cut
/// off.
namespace Worttabelle {

/// A table of that name; it reads what the model holds, which outlives it.
QTableView *neue(const char *name, QAbstractItemModel &modell);

/// Gives the columns their widths anew: the first gets what the others leave, and no column becomes
/// narrower than its widest word. The table says how wide it must be for that.
void verteile(QTableView &tabelle);

} // namespace Worttabelle
