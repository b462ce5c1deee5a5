#include "Zeilenhoehe.h"

#include <QWidget>

#include <algorithm>

int zeilenhoeheFuer(const QWidget &tabelle, int hoehe)
{
    constexpr int luft = 4;
    return std::max(hoehe, tabelle.fontMetrics().height() + luft);
}
