#pragma once

#include <QByteArray>
#include <QString>

/// A file that says that a program is at work on what lies beside it. It counts while a running
/// program holds it, whatever stands in it: what a killed program left behind, or a machine that
/// went down, is nobody's and can be taken at once.
class Dateisperre
{
public:
    explicit Dateisperre(const QString &pfad);
    /// Gives the sign back, if it was taken: the file is gone then.
    ~Dateisperre();
    Dateisperre(const Dateisperre &) = delete;
    Dateisperre &operator=(const Dateisperre &) = delete;

    /// Takes the sign. False when another program holds it. Where no sign can be left, nobody can
    /// hold one, and the answer is true.
    bool nimm();

    /// Removes a sign that nobody holds.
    static void raeumeVerwaiste(const QString &pfad);

private:
    bool liegtDa(int griff) const;

    QByteArray m_pfad;
    int m_griff = -1; ///< the open file while the sign is taken
};
