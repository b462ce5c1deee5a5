#include "Sprache.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

/// The desktop's own locale where it speaks the wanted language (Swiss German numbers differ from
/// German ones), else the language's plain locale.
QLocale localeFuer(const QString &wunsch)
{
    const QLocale system = QLocale::system();
    const bool deutsch = system.language() == QLocale::German;
    const bool englisch = system.language() == QLocale::English;
    if (wunsch == QLatin1String("en") || (wunsch != QLatin1String("de") && englisch)) {
        return englisch ? system : QLocale(QLocale::English, QLocale::UnitedKingdom);
    }
    return deutsch ? system : QLocale(QLocale::German, QLocale::Germany);
}

} // namespace

Sprache::Sprache(const QString &wunsch)
{
    const QLocale locale = localeFuer(wunsch);
    QLocale::setDefault(locale);
    const bool englisch = locale.language() == QLocale::English;

    QStringList dateien = {
        QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
        (englisch ? QStringLiteral("/qtbase_en.qm") : QStringLiteral("/qtbase_de.qm"))};
    if (englisch) {
        dateien << QStringLiteral(":/uebersetzungen/mahlberg_en.qm")
                << QStringLiteral(":/uebersetzungen/lebensmittel_en.qm");
    }
    for (const QString &datei : dateien) {
        auto uebersetzer = std::make_unique<QTranslator>();
        if (uebersetzer->load(datei)) {
            QCoreApplication::installTranslator(uebersetzer.get());
            m_uebersetzer.push_back(std::move(uebersetzer));
        }
    }
}

Sprache::~Sprache() = default;
