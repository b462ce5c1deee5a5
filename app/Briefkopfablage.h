#pragma once

#include "Briefkopf.h"
#include "Datenordner.h"

#include <QString>

#include <optional>

class QSettings;

/// The letterhead of the practice as it is kept: name and address in the settings, the logo as a
/// picture of its own beside the user's data, so that it stays when the file it came from goes.
class Briefkopfablage
{
public:
    /// Why a picture is no logo now.
    enum class Hindernis {
        NichtZuLesen,   ///< the file can't be read, or is damaged
        KeinBild,       ///< neither PNG nor JPEG nor SVG
        ZuGross,        ///< more than 20 MB, or more than 30 million dots
        NichtZuSichern, ///< the copy could not be written; the logo is as it was
    };

    /// The settings outlive it.
    Briefkopfablage(QSettings &einstellungen, Datenordner ordner);

    /// What is kept. A logo that was chosen and can't be read is told in it.
    Briefkopf lies() const;

    void setzeName(const QString &name);
    /// As it was typed, line by line; blank lines at its ends fall away when it is read.
    void setzeAnschrift(const QString &anschrift);
    QString anschrift() const;

    /// Keeps a copy of a picture (PNG, JPEG or SVG) as the logo, not finer than print shows.
    std::optional<Hindernis> uebernimmLogo(const QString &path);
    /// No logo from now on. False: it could not be taken away.
    bool entferneLogo();
    bool hatLogo() const;

    /// Where the copy lies.
    QString logodatei() const;

private:
    QSettings &m_einstellungen;
    Datenordner m_ordner;
};

/// What is said to the user about a picture that is no logo now.
QString inWorten(Briefkopfablage::Hindernis hindernis);
