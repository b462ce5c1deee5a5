#pragma once

#include <cerrno>

/// As long as one of these lives, one step on the way to the disk fails: what a broken disk, a lost
/// network or a full one does to a program. Several of them work together. Only for tests that are
/// linked with `Stoerung.cpp`, which stands before the system's own functions.
class Stoerung
{
public:
    enum class Schritt {
        Oeffnen,       ///< of a file to read
        Lesen,         ///< of a file
        Anlegen,       ///< of a temporary file
        Schreiben,     ///< into it
        Rechte,        ///< of it
        DateiSichern,  ///< its way from memory to the disk
        Verknuepfen,   ///< of a second name with it
        Tauschen,      ///< of its name with another file's
        Umbenennen,    ///< of anything
        OrdnerOeffnen, ///< to make a change of names safe
        OrdnerSichern, ///< its way to the disk
    };

    /// The first `heile` times the step goes well, then it fails: once, or for good. `fehler` is
    /// what the system calls it.
    explicit Stoerung(Schritt schritt, int heile = 0, bool einmal = false, int fehler = EIO);
    ~Stoerung();
    Stoerung(const Stoerung &) = delete;
    Stoerung &operator=(const Stoerung &) = delete;

    /// How often the step failed.
    int ausfaelle() const { return m_ausfaelle; }

    /// Asked before each step: whether it is to fail now, with `errno` set.
    static bool trifft(Schritt schritt);

private:
    bool faelltAus(Schritt schritt);

    static Stoerung *s_wirkt;
    Stoerung *m_fruehere; ///< works as well; null: none
    Schritt m_schritt;
    int m_heile;
    bool m_einmal;
    int m_fehler;
    int m_ausfaelle = 0;
};
