#pragma once

#include <QHeaderView>

/// The headings of a table. Where a column is too narrow for its title, its short title stands
/// there; what does not fit even then ends in an ellipsis.
class Tabellenkopf : public QHeaderView
{
public:
    explicit Tabellenkopf(QWidget *parent = nullptr);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const override;
};
