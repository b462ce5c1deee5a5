#pragma once

#include "Archivdatei.h"
#include "Dateistempel.h"
#include "Sicherungen.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QObject>

#include <functional>
#include <optional>

/// Something that happened to a file of the user's and that the user should learn of.
struct Dateimeldung
{
    enum class Art {
        NichtLesbar,    ///< it exists but could not be read; what it holds is not shown
        Beschaedigt,    ///< it was read but holds no store of foods; kept as it is until the first
                        ///< write
        Beiseitegelegt, ///< before a write, what stood there was kept in `kopie`
        NichtGeschrieben, ///< the last write failed; the program goes on with what it holds
    };
    Art art;
    QString path;
    QString kopie; ///< path of the copy; `Beiseitegelegt` only
    QString grund; ///< in English, for those who look after files
};

/// The keeper of the user's files. It reads and writes them for everybody in the program, so it
/// knows what the program itself has read or written, and lets nothing else be overwritten without
/// a copy. One keeper serves a data folder.
class Dateihueter : public QObject
{
    Q_OBJECT

public:
    using Uhr = std::function<QDateTime()>;
    using Sicherung = Sicherungen::Sicherung;

    explicit Dateihueter(QObject *parent = nullptr) : QObject(parent) {}

    /// Reads a store. Each reader writes later what it saw and its user's changes, so that only a
    /// file of which all saw the same is known to the program: one that could not be read at some
    /// time, or that stood differently, is not overwritten without a copy.
    Archivdatei::Inhalt lesen(const QString &path);

    /// Writes a store, as `Archivdatei::schreiben` does. Before the first change of a day the file
    /// is kept as it stood at the end of the day of its last change; whether that works is no
    /// matter. What the program has not read or written as it stands now is put aside first, or
    /// else not overwritten. False when the file does not hold the store.
    bool schreiben(const QString &path, const Lebensmittelverzeichnis &verzeichnis);

    /// Sees to it that the file holds the store, for a caller that asks for that again and again,
    /// far more often than anything changes. While neither the store nor the file was touched since
    /// it was written, asking costs one look at the file's date; when another part of the program
    /// has written the file in between, it is written anew. What could not be written is tried
    /// again after a change of the store or of what is at the path, or some seconds later.
    void halte(const QString &path, const Lebensmittelverzeichnis &verzeichnis);

    /// Keeps a copy of the file as it stands now, beside the others, because the user is about to
    /// replace it by an earlier state. A file that is not there or can't be read is left alone.
    void hebeAuf(const QString &path) const;

    /// What the user should know now: at most one report for each path and kind, oldest first.
    const QList<Dateimeldung> &offeneMeldungen() const { return m_meldungen; }

    /// The dated day copies of a file, newest first.
    QList<Sicherung> sicherungen(const QString &path) const { return Sicherungen::tage(path); }

    /// The clock; the machine's until another one is set.
    void setUhr(const Uhr &uhr) { m_uhr = uhr; }

    // A table that is being painted may ask for a write, so that what shows these to the user had
    // better be connected to them with a queued connection.
Q_SIGNALS:
    /// There is a new open report. It is not repeated while it is open, but a further file that was
    /// put aside is a further report in the place of the last one.
    void gemeldet(const Dateimeldung &meldung);
    /// Reports about this path are settled: a write worked, or nothing was left to write. That
    /// something was put aside stays open for a minute, since the next write may follow at once.
    void erledigt(const QString &path);
    /// The file now holds this. Sent by `schreiben` even when its bytes did already.
    void geschrieben(const QString &path, const Lebensmittelverzeichnis &verzeichnis);

private:
    /// A store that was last asked to be held, and what came of it.
    struct Gehaltenes
    {
        Lebensmittelverzeichnis verzeichnis; ///< shares its data with the store until that changes
        std::optional<Dateistempel> stempel; ///< of what is at the path; absent when nothing is
        QDateTime misslungen;                ///< when it could not be written; null when it was
    };

    /// What is known of a file.
    struct Akte
    {
        QByteArray bekannt; ///< fingerprint of what the program read or wrote last; null: nothing
        QList<Gehaltenes> gehaltenes; ///< one for each store, since every plan has one of its own
        QDateTime beiseitegelegt;     ///< when the file was last put aside; null: never
    };

    /// What came of writing a file, and what of the one that was there.
    struct Versuch
    {
        Archivdatei::Ausgang ausgang;
        Sicherungen::Beiseitegelegtes beiseite;
    };

    bool mussGehaltenWerden(const QString &path, const Lebensmittelverzeichnis &verzeichnis) const;
    void merkeGehaltenes(const QString &path, const Lebensmittelverzeichnis &verzeichnis,
                         bool gelungen);
    Versuch versuche(const QString &path, const Lebensmittelverzeichnis &verzeichnis);
    bool bewahre(const QString &path, const Archivdatei::Rohdaten &vorher,
                 Sicherungen::Beiseitegelegtes &beiseite) const;
    void sichereTag(const QString &path, const QByteArray &bytes) const;
    void berichte(const QString &path, const Versuch &versuch);
    void melde(const Dateimeldung &meldung);
    void erledige(const QString &path);

    Uhr m_uhr = [] {
        return QDateTime::currentDateTime();
    };
    QHash<QString, Akte> m_akten;
    QList<Dateimeldung> m_meldungen;
};
