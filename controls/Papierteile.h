#pragma once

#include <QObject>
#include <QSet>

class QWidget;

/// While it lives, the parts of a window are painted as they belong on paper: what is there to be
/// moved or pressed is left out, entries are their plain text with its unit, and captions have no
/// underlined letters. Of choices that exclude each other the chosen one is written. Everything
/// else is painted as ever. A part with the property "nurAmBildschirm" is left out with all that is
/// in it: it is a hint for users of the screen, or shows what stands there once more.
class Papierteile : public QObject
{
public:
    explicit Papierteile(QWidget &flaeche);

protected:
    bool eventFilter(QObject *ziel, QEvent *event) override;

private:
    void beachte(QWidget &teil, bool weggelassen);

    QSet<const QObject *> m_weggelassen;
};
