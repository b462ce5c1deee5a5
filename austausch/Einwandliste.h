#pragma once

#include "Einlesung.h"

#include <QListWidget>
#include <QSet>

/// What is to be said about a file, line by line. A line with a mistake can be left out by its box;
/// those that are left out stay in the list, so that they can come back.
class Einwandliste : public QListWidget
{
    Q_OBJECT

public:
    /// More than these nobody reads; the last entry says how many there are.
    static constexpr qsizetype hoechstens = 500;

    explicit Einwandliste(QWidget *parent = nullptr);

    void zeige(const QList<Einwand> &einwaende, const QSet<int> &ausgelassen);

Q_SIGNALS:
    /// The user wants a line left out or, `weg` false, back.
    void ausgelassen(int zeile, bool weg);

private:
    void fuegeEin(const QString &text, int zeile, bool weg, bool waehlbar, Schwere schwere);
};
