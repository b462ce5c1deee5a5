#include "Stoerung.h"

#include <cstdarg>
#include <cstdio>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

Stoerung *Stoerung::s_wirkt = nullptr;

Stoerung::Stoerung(Schritt schritt, int heile, bool einmal, int fehler)
    : m_fruehere(s_wirkt)
    , m_schritt(schritt)
    , m_heile(heile)
    , m_einmal(einmal)
    , m_fehler(fehler)
{
    s_wirkt = this;
}

Stoerung::~Stoerung()
{
    s_wirkt = m_fruehere;
}

bool Stoerung::trifft(Schritt schritt)
{
    for (Stoerung *eine = s_wirkt; eine != nullptr; eine = eine->m_fruehere) {
        if (eine->faelltAus(schritt)) {
            return true;
        }
    }
    return false;
}

bool Stoerung::faelltAus(Schritt schritt)
{
    if (m_schritt != schritt || m_heile-- > 0 || (m_einmal && m_ausfaelle > 0)) {
        return false;
    }
    ++m_ausfaelle;
    errno = m_fehler;
    return true;
}

namespace {

using Schritt = Stoerung::Schritt;

bool istOrdner(int datei)
{
    struct stat angaben = {};
    return fstat(datei, &angaben) == 0 && S_ISDIR(angaben.st_mode);
}

bool istDatei(int datei)
{
    struct stat angaben = {};
    return fstat(datei, &angaben) == 0 && S_ISREG(angaben.st_mode);
}

template <typename Funktion>
Funktion *echte(const char *name)
{
    return reinterpret_cast<Funktion *>(dlsym(RTLD_NEXT, name));
}

int oeffne(const char *name, const char *path, int flags, mode_t mode)
{
    const bool ordner = (flags & O_DIRECTORY) != 0;
    const bool lesend = (flags & O_ACCMODE) == O_RDONLY;
    if (ordner ? Stoerung::trifft(Schritt::OrdnerOeffnen)
               : lesend && Stoerung::trifft(Schritt::Oeffnen)) {
        return -1;
    }
    return echte<int(const char *, int, ...)>(name)(path, flags, mode);
}

mode_t rechte(int flags, va_list liste)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(liste, mode_t) : 0;
}

} // namespace

extern "C" {

int open(const char *path, int flags, ...)
{
    va_list liste;
    va_start(liste, flags);
    const mode_t mode = rechte(flags, liste);
    va_end(liste);
    return oeffne("open", path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list liste;
    va_start(liste, flags);
    const mode_t mode = rechte(flags, liste);
    va_end(liste);
    return oeffne("open64", path, flags, mode);
}

ssize_t read(int datei, void *ziel, size_t bytes)
{
    return istDatei(datei) && Stoerung::trifft(Schritt::Lesen)
               ? -1
               : echte<ssize_t(int, void *, size_t)>("read")(datei, ziel, bytes);
}

int mkostemp(char *name, int flags)
{
    return Stoerung::trifft(Schritt::Anlegen) ? -1
                                              : echte<int(char *, int)>("mkostemp")(name, flags);
}

ssize_t write(int datei, const void *quelle, size_t bytes)
{
    return istDatei(datei) && Stoerung::trifft(Schritt::Schreiben)
               ? -1
               : echte<ssize_t(int, const void *, size_t)>("write")(datei, quelle, bytes);
}

int fchmod(int datei, mode_t mode) noexcept
{
    return Stoerung::trifft(Schritt::Rechte) ? -1 : echte<int(int, mode_t)>("fchmod")(datei, mode);
}

int fsync(int datei)
{
    const Schritt schritt = istOrdner(datei) ? Schritt::OrdnerSichern : Schritt::DateiSichern;
    return Stoerung::trifft(schritt) ? -1 : echte<int(int)>("fsync")(datei);
}

int link(const char *von, const char *nach) noexcept
{
    return Stoerung::trifft(Schritt::Verknuepfen)
               ? -1
               : echte<int(const char *, const char *)>("link")(von, nach);
}

int renameat2(int ordner, const char *von, int zielordner, const char *nach,
              unsigned int wie) noexcept
{
    if ((wie & RENAME_EXCHANGE) != 0 && Stoerung::trifft(Schritt::Tauschen)) {
        return -1;
    }
    return echte<int(int, const char *, int, const char *, unsigned int)>("renameat2")(
        ordner, von, zielordner, nach, wie);
}

int rename(const char *von, const char *nach) noexcept
{
    return Stoerung::trifft(Schritt::Umbenennen)
               ? -1
               : echte<int(const char *, const char *)>("rename")(von, nach);
}

} // extern "C"
