#pragma once

#include "Dateistempel.h"
#include "Datenbank.h"

#include <QDateTime>

#include <optional>

/// The store of one desk: a file of SQLite's in the data folder, for its user alone. It is written
/// in SQLite's write-ahead log where the file system bears that, and in its journal elsewhere.
class Dateidatenbank : public Datenbank
{
public:
    /// The sign in the file's head by which it is known ("Mhlb").
    static constexpr int erkennung = 0x4D686C62;

    using Uhr = std::function<QDateTime()>;

    /// A link is followed. Nothing is opened or made yet.
    explicit Dateidatenbank(const QString &path);

    /// What was deleted is overwritten in the file at once, and in the log here.
    Ausgang raeumeAuf() override;
    /// Writes a whole copy of the store as it stands now, while others may go on writing. What
    /// stands at the path already is replaced when the copy is on the disk, not before.
    Ausgang kopiere(const QString &nach);

    /// The clock; the machine's until another one is set.
    void setUhr(const Uhr &uhr) { m_uhr = uhr; }

protected:
    bool vorhanden() const override;
    Ausgang verbinde() override;
    Ausgang richteEin() override;
    /// Before the first change of a day the store is kept as it stood at the end of the day of its
    /// last change, ten days of it; whether that works is no matter.
    void vorSchreiben() override;
    Ausgang vorUmbau() override;
    bool nochDasselbe() const override;
    QString schreibbeginn() const override { return QStringLiteral("BEGIN IMMEDIATE"); }
    bool sperreUmbau(Gespraech &) override { return true; }
    bool lege(Gespraech &gespraech) override;
    QString fragtNachTabelle() const override;
    Hindernis deute(const QSqlError &fehler) const override;

private:
    Ausgang oeffneDatei(bool nurLesen);
    Ausgang pruefeGanzes();
    bool istNeuer() const;
    Ausgang schreibeKopie(const QString &nach);

    QString m_path;
    QDate m_gesichert; ///< the day on which was last seen to the copies
    Uhr m_uhr = [] {
        return QDateTime::currentDateTime();
    };
    std::optional<Dateistempel> m_geoeffnet; ///< which file was opened; absent while none is
};
