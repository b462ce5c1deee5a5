#pragma once

#include <QByteArrayView>
#include <QDateTime>
#include <QString>

/// The step from one state of a file to the next. The new state is written beside the file, whole
/// and safely on the disk, and then takes its place at once: at any moment, also on a power cut,
/// either the old or the new one is there. A change that doesn't come to its end leaves no trace.
///
/// What is written is readable by the user alone.
class Dateiwechsel
{
public:
    /// A link is followed, so that it stays a link.
    explicit Dateiwechsel(const QString &path);
    ~Dateiwechsel();
    Dateiwechsel(const Dateiwechsel &) = delete;
    Dateiwechsel &operator=(const Dateiwechsel &) = delete;

    /// Writes the new state beside the file; of the file's rights it keeps those of the user.
    /// `geaendert` is what it tells as the moment of its last change; an invalid one means now.
    bool bereite(QByteArrayView bytes, const QDateTime &geaendert = {});
    /// Puts the new state in the file's place. When even that can't be made safe, the answer is
    /// false and the old file is back in it; if not even that works, it lies beside the new one
    /// under one of the names below, unless the disk let it have none.
    bool vollziehe();
    /// Why one of the two failed, for those who look after files.
    const QString &grund() const { return m_grund; }

    /// The file that a path means: where its link leads to, or itself.
    static QString ziel(const QString &path);
    // How what is only there during a change is named, behind the name of the file: the new state,
    // with six letters that are others each time, and behind that the file as it was, until the new
    // one is safe; where a file can't have two names, it has that of the new state. The new state
    // is locked by its writer from its beginning to the end of the change, also once it has taken
    // the file's place.
    static constexpr const char *endungNeues = ".schreibe-";
    static constexpr const char *endungVorher = ".vorher";

private:
    bool schreibe(QByteArrayView bytes, const QDateTime &geaendert);
    bool setzeEin();
    void stelleZurueck();
    bool misslungen();

    QByteArray m_ziel;  ///< path of the file
    QByteArray m_neues; ///< path of the new state; empty while there is none
    QByteArray m_altes; ///< path of the old state until the new one is safe; empty: none is there
    bool m_gabKeines = false; ///< there was no file before
    int m_datei = -1;         ///< the new state, open and locked as long as this lives
    QString m_grund;
};
