#pragma once

#include <QBasicTimer>
#include <QSettings>

/// The user defaults in the platform's store. A value that was set can be read at once, and is
/// written to the disk a little later, with all that were set in the meantime: a slider sets its
/// value a hundred times on its way, and each write would stop it for several milliseconds. What
/// is not written yet is written by `sync()` and at the end of the program. The file is for the
/// user alone. One that can't be read or written stays as it is, and the program works without.
///
/// Whoever writes at once holds this class, not its base: there, `sync()` knows of no care.
class Einstellungen : public QSettings
{
    Q_OBJECT

public:
    /// Those of the user, where the platform keeps them.
    Einstellungen();
    /// Those in a file of one's own.
    Einstellungen(const QString &datei, Format format);
    ~Einstellungen() override;

    /// Writes at once what must outlast a program that is killed in the next moment. A failure is
    /// told a little later, as with all that is set.
    void sync();

Q_SIGNALS:
    /// What was set could not be written to this file. Sent once, until writing succeeds again;
    /// what was set still holds, and every later change and the end of the program try anew.
    void nichtGeschrieben(const QString &path);
    /// After `nichtGeschrieben`: all that was set is written now.
    void wiederGeschrieben();

protected:
    bool event(QEvent *event) override;

private:
    bool schreibe();
    void schreibeUndMelde();

    QBasicTimer m_ruhe;
    bool m_geschrieben = true; ///< the last write succeeded
};
