#pragma once

#include "Satzspalten.h"

#include <QDate>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <functional>

class QComboBox;
class QLabel;
class QWidget;

/// The fields of a page that stand for the columns of a record: each is called as its column is,
/// and a label called like it with "Fehler" behind takes what is wrong with what was typed. Texts,
/// measures and days are typed; choices are lists, whose entries hold what is kept; notes are
/// several lines. What can't be read is said beside its field and stays as it was typed.
class Satzformular : public QObject
{
    Q_OBJECT

public:
    /// The page outlives this object.
    explicit Satzformular(QWidget &seite);

    /// Shows a record. Where the user is typing, or has typed what can't be kept, the field keeps
    /// that as long as the same record says the same there.
    template <typename Satz>
    void zeige(const Satz &satz)
    {
        beginne(satz.kennung);
        for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
            zeigeFeld(QLatin1String(spalte.name), spalte.lies(satz));
        }
    }

    /// Takes over into the record what stands in the fields. False when something can't be read; it
    /// is said, and the record keeps what it had there.
    template <typename Satz>
    bool lies(Satz &satz, const QDate &heute)
    {
        bool lesbar = true;
        for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
            QVariant wert;
            const bool feldlesbar = liesFeld(QLatin1String(spalte.name), spalte.name, heute, wert);
            lesbar = lesbar && feldlesbar;
            if (feldlesbar && wert.isValid()) {
                spalte.setze(satz, wert);
            }
        }
        return lesbar;
    }

    /// Says beside a field what is wrong with it; an empty text takes it back.
    void sageFehler(const QString &spalte, const QString &worte);

    /// Leads the user back into a field, to type it anew.
    void gehZu(const QString &spalte);

    /// What a choice offers, and what is kept for each. With `auchNichts` the first is no answer.
    void bieteAn(const QString &spalte, const QStringList &worte, const QVariantList &werte,
                 bool auchNichts);

    /// The user has not told the page what was typed last: it is told now.
    void schliesseAb();

Q_SIGNALS:
    /// The user has finished an entry.
    void eingegeben();

private:
    void verbinde(QWidget *feld);
    void beginne(const QString &kennung);
    void zeigeFeld(const QString &spalte, const QVariant &wert);
    bool liesFeld(const QString &spalte, const char *name, const QDate &heute, QVariant &wert);
    QWidget *feld(const QString &spalte) const;

    QWidget &m_seite;
    QString m_kennung;                  ///< key of the record; null for a new one
    QHash<QString, QVariant> m_gezeigt; ///< what the record held in each field
    QSet<QString> m_fehlerhaft;         ///< fields that hold what can't be kept
    QTimer m_pause;                     ///< behind the last letter of a note
    bool m_stellt = false;              ///< what changes now is no entry of the user's
};
