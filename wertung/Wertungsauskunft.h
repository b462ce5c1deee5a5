#pragma once

#include "Wertungserklaerung.h"

#include <QHash>

#include <optional>

/// Tells for the foods of the shipped table why they are rated as they are. The table is read when
/// the first reason is asked for, so that nobody waits for it who asks for none.
class Wertungsauskunft
{
public:
    /// `tabelle` is the path of the food table, a file or a resource. While nothing can be read
    /// there, nothing is explained.
    explicit Wertungsauskunft(QString tabelle) : m_tabelle(std::move(tabelle)) {}

    /// Why the food of that German name is rated `urteil` ("+", "0" or "-") for a condition, in the
    /// lines of `Wertungserklaerung::zeilen`. Empty for a food that the table lacks, and where its
    /// figures give another rating: a record from elsewhere must not get a wrong reason.
    QStringList erklaerung(const QString &name, Wertung wertung, const QString &urteil,
                           Regelsprache sprache, const QLocale &zahlen) const;

private:
    using Verzeichnis = QHash<QString, Tabellenzeile>;

    Verzeichnis gelesen() const;

    QString m_tabelle;
    mutable std::optional<Verzeichnis> m_zeilen; ///< by the German name; absent until asked for
};
