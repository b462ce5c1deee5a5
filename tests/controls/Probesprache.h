#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

/// Speaks a language from now on: numbers and days, and while it lives texts too.
class Probesprache
{
public:
    explicit Probesprache(QLocale::Language sprache)
    {
        const bool deutsch = sprache == QLocale::German;
        QLocale::setDefault(deutsch ? QLocale(QLocale::German, QLocale::Germany)
                                    : QLocale(QLocale::English, QLocale::UnitedKingdom));
        if (!deutsch && m_fenster.load(QStringLiteral(":/uebersetzungen/mahlberg_en.qm")) &&
            m_speisen.load(QStringLiteral(":/uebersetzungen/lebensmittel_en.qm"))) {
            QCoreApplication::installTranslator(&m_fenster);
            QCoreApplication::installTranslator(&m_speisen);
        }
    }
    Probesprache(const Probesprache &) = delete;
    Probesprache &operator=(const Probesprache &) = delete;

private:
    QTranslator m_fenster; ///< taken away when it goes
    QTranslator m_speisen; ///< names of foods; taken away as well
};
