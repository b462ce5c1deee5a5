#include "Sprache.h"

#include "Wertehalter.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <array>

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

/// The names that stand on German keyboards, for the keys of the menus. Qt's own German leaves
/// "Return" as it is, and not every desktop has it installed.
class Tastennamen : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char * /*worauf*/,
                      int /*anzahl*/) const override
    {
        static constexpr std::array<std::pair<const char *, const char16_t *>, 8> namen = {{
            {"Ctrl", u"Strg"},
            {"Shift", u"Umschalt"},
            {"Return", u"Eingabe"},
            {"Enter", u"Eingabe"},
            {"Del", u"Entf"},
            {"Ins", u"Einfg"},
            {"Home", u"Pos1"},
            {"Space", u"Leertaste"},
        }};
        const auto *const name =
            std::find_if(namen.begin(), namen.end(), [context, sourceText](const auto &zeile) {
                return qstrcmp(context, "QShortcut") == 0 && qstrcmp(sourceText, zeile.first) == 0;
            });
        return name != namen.end() ? QString::fromUtf16(name->second) : QString();
    }

    bool isEmpty() const override { return false; }
};

} // namespace

Sprache::Sprache(const QString &wunsch)
{
    sprich(wunsch);
}

void Sprache::sprich(const QString &wunsch)
{
    m_uebersetzer.clear(); // a translation that goes is no longer asked
    const QLocale locale = localeFuer(wunsch);
    QLocale::setDefault(locale);
    QLocale::setDefault(zahlenform()); // for what writes numbers without asking for their form
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
    if (!englisch) {
        m_uebersetzer.push_back(std::make_unique<Tastennamen>());
        QCoreApplication::installTranslator(m_uebersetzer.back().get()); // asked before Qt's own
    }
}

Sprache::~Sprache() = default;
