#include "Wortkopf.h"

#include <algorithm>

Wortkopf::Wortkopf(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setDefaultAlignment(Qt::AlignCenter | Qt::Alignment(Qt::TextWordWrap));
    setHighlightSections(false);
}

QSize Wortkopf::sizeHint() const
{
    QSize platz = QHeaderView::sizeHint();
    const int rand = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    for (int spalte = 0; spalte < count(); ++spalte) {
        const QRect breite(0, 0, sectionSize(spalte) - 2 * rand, QWIDGETSIZE_MAX);
        const QString text = model()->headerData(spalte, Qt::Horizontal).toString();
        const int hoehe = fontMetrics().boundingRect(breite, Qt::TextWordWrap, text).height();
        platz.setHeight(std::max(platz.height(), hoehe + 2 * rand));
    }
    return platz;
}

int Wortkopf::wortbreite() const
{
    int breite = 0;
    for (int spalte = 0; spalte < count(); ++spalte) {
        const QString text = model()->headerData(spalte, Qt::Horizontal).toString();
        for (const QString &wort : text.split(u' ')) {
            breite = std::max(breite, fontMetrics().horizontalAdvance(wort));
        }
    }
    return breite + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
}
