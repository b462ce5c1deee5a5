#include "Aufruf.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// Which commands have use for an option.
constexpr unsigned fuerFenster = 1;
constexpr unsigned fuersAuswerten = 2;
constexpr unsigned fuersNachschlagen = 4;
constexpr unsigned fuerAlle = fuerFenster | fuersAuswerten | fuersNachschlagen;

struct Option
{
    const char *name;
    const char *kurz; ///< null: it has no short form
    bool mitAngabe;
    unsigned fuer;
};

constexpr std::array<Option, 8> optionen = {{
    {"help", "h", false, fuerAlle},
    {"version", "v", false, fuerAlle},
    {"language", nullptr, true, fuerAlle},
    {"data-dir", nullptr, true, fuerAlle},
    {"tour", nullptr, true, fuerFenster},
    {"format", nullptr, true, fuersAuswerten | fuersNachschlagen},
    {"energy", nullptr, true, fuersAuswerten},
    {"own", nullptr, false, fuersNachschlagen},
}};

/// Qt's own, for its windows.
constexpr std::array qtMitAngabe = {
    "platform",
    "platformpluginpath",
    "platformtheme",
    "plugin",
    "qwindowgeometry",
    "geometry",
    "qwindowtitle",
    "title",
    "icon",
    "qwindowicon",
    "session",
    "style",
    "stylesheet",
    "display",
    "name",
    "fn",
    "font",
    "bg",
    "fg",
    "qmljsdebugger",
};
constexpr std::array qtOhneAngabe = {"reverse", "widgetcount", "nograb", "dograb", "sync"};

struct Befehlsform
{
    const char *wort;
    Befehl befehl;
    unsigned gruppe;
    int hoechstens; ///< as many arguments; one is always needed
    Fehlerart fehlt;
};

constexpr std::array<Befehlsform, 2> befehle = {{
    {"evaluate", Befehl::Auswerten, fuersAuswerten, 1, Fehlerart::PlanFehlt},
    {"food", Befehl::Nachschlagen, fuersNachschlagen, 2, Fehlerart::NameFehlt},
}};

constexpr std::array<std::pair<const char *, Ausgabeform>, 3> formen = {{
    {"text", Ausgabeform::Text},
    {"csv", Ausgabeform::Csv},
    {"json", Ausgabeform::Json},
}};

/// What Qt's parser makes of a command line, read step by step. The first fault ends it.
class Aufrufleser
{
public:
    explicit Aufrufleser(const QStringList &argumente);
    Aufruf lies();

private:
    using Befund = std::optional<Aufruffehler>;

    Befund pruefeOptionen() const;
    Befund leseFuerAlle();
    Befund leseBefehl();
    Befund leseFuerBefehl(const Befehlsform &form);
    Befund leseDateien(const QStringList &worte);
    Befund leseForm();
    Befund leseEnergie();
    Befund leseMenge(const QString &text);
    Befund pruefeZugehoerigkeit(unsigned gruppe) const;

    bool gesetzt(const char *option) const { return m_leser.isSet(QLatin1String(option)); }
    QString angabe(const char *option) const { return m_leser.value(QLatin1String(option)); }

    QStringList m_argumente;
    QCommandLineParser m_leser;
    bool m_verstanden;
    Auftrag m_auftrag;
};

bool istDateiadresse(const QString &wort)
{
    return wort.startsWith(QLatin1String("file:"), Qt::CaseInsensitive);
}

bool siehtWieDateiAus(const QString &wort)
{
    return wort.endsWith(QLatin1String(".daten"), Qt::CaseInsensitive) || wort.contains(u'/') ||
           istDateiadresse(wort);
}

/// The path means the same wherever the program that opens it was started.
QString ganzerPfad(const QString &wort)
{
    return QFileInfo(istDateiadresse(wort) ? QUrl(wort).toLocalFile() : wort).absoluteFilePath();
}

/// The option's name without its dashes and what is behind "=".
QString optionsname(const QString &argument)
{
    const qsizetype striche = argument.startsWith(QLatin1String("--")) ? 2 : 1;
    return argument.mid(striche).section(u'=', 0, 0);
}

/// Whether no value belongs to the option.
bool stehtAllein(const QString &name)
{
    return std::any_of(optionen.begin(), optionen.end(),
                       [&name](const Option &option) {
                           return !option.mitAngabe && (name == QLatin1String(option.name) ||
                                                        name == QLatin1String(option.kurz));
                       }) ||
           std::any_of(qtOhneAngabe.begin(), qtOhneAngabe.end(),
                       [&name](const char *option) { return name == QLatin1String(option); });
}

/// The argument that names this option, as it was typed.
QString getippt(const QStringList &argumente, const QString &name)
{
    const auto gefunden =
        std::find_if(argumente.begin(), argumente.end(), [&name](const QString &argument) {
            return argument.startsWith(u'-') && optionsname(argument) == name;
        });
    return gefunden != argumente.end() ? gefunden->section(u'=', 0, 0) : name;
}

Aufrufleser::Aufrufleser(const QStringList &argumente) : m_argumente(argumente)
{
    m_leser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QString mitAngabe = QStringLiteral("x"); // any name makes an option take one
    for (const Option &option : optionen) {
        QStringList namen = {QLatin1String(option.name)};
        if (option.kurz != nullptr) {
            namen << QLatin1String(option.kurz);
        }
        m_leser.addOption(QCommandLineOption(namen, {}, option.mitAngabe ? mitAngabe : QString()));
    }
    for (const char *name : qtMitAngabe) {
        m_leser.addOption(QCommandLineOption(QLatin1String(name), {}, mitAngabe));
    }
    for (const char *name : qtOhneAngabe) {
        m_leser.addOption(QCommandLineOption(QLatin1String(name)));
    }
    m_verstanden = m_leser.parse(argumente);
}

Aufruf Aufrufleser::lies()
{
    Befund fehler = leseFuerAlle(); // the language first: in it the other faults are told
    if (const Befund frueher = pruefeOptionen()) {
        fehler = frueher;
    }
    if (!fehler && gesetzt("help")) {
        m_auftrag.befehl = Befehl::Hilfe;
    } else if (!fehler && gesetzt("version")) {
        m_auftrag.befehl = Befehl::Version;
    } else if (!fehler) {
        fehler = leseBefehl();
    }
    return {m_auftrag, fehler};
}

/// An option that lacks what belongs behind it can only be the last argument.
Aufrufleser::Befund Aufrufleser::pruefeOptionen() const
{
    if (m_verstanden) {
        return {};
    }
    const QStringList unbekannte = m_leser.unknownOptionNames();
    if (!unbekannte.isEmpty()) {
        return Aufruffehler{Fehlerart::UnbekannteOption,
                            getippt(m_argumente, unbekannte.constFirst())};
    }
    const QString letztes = m_argumente.constLast();
    if (letztes.startsWith(u'-') && !letztes.contains(u'=') && !stehtAllein(optionsname(letztes))) {
        return Aufruffehler{Fehlerart::AngabeFehlt, letztes};
    }
    const auto zuviel =
        std::find_if(m_argumente.begin(), m_argumente.end(), [](const QString &argument) {
            return argument.startsWith(u'-') && argument.contains(u'=') &&
                   stehtAllein(optionsname(argument));
        });
    return Aufruffehler{Fehlerart::AngabeZuviel, zuviel != m_argumente.end() ? *zuviel : letztes};
}

Aufrufleser::Befund Aufrufleser::leseFuerAlle()
{
    m_auftrag.rundgang = angabe("tour");
    if (gesetzt("language")) {
        const QString sprache = angabe("language");
        if (sprache != QLatin1String("de") && sprache != QLatin1String("en")) {
            return Aufruffehler{Fehlerart::SpracheUnbekannt, sprache};
        }
        m_auftrag.sprache = sprache;
    }
    if (gesetzt("data-dir")) {
        m_auftrag.datenordner = angabe("data-dir");
        if (m_auftrag.datenordner.isEmpty()) {
            return Aufruffehler{Fehlerart::OrdnerLeer, {}};
        }
    }
    return {};
}

Aufrufleser::Befund Aufrufleser::leseBefehl()
{
    const QStringList worte = m_leser.positionalArguments();
    if (worte.isEmpty()) {
        return pruefeZugehoerigkeit(fuerFenster);
    }
    const auto *form = std::find_if(befehle.begin(), befehle.end(), [&worte](const auto &eine) {
        return worte.constFirst() == QLatin1String(eine.wort);
    });
    return form != befehle.end() ? leseFuerBefehl(*form) : leseDateien(worte);
}

/// A file manager gives whole paths or addresses. On the tour nobody is there to look at a file.
Aufrufleser::Befund Aufrufleser::leseDateien(const QStringList &worte)
{
    if (!siehtWieDateiAus(worte.constFirst())) {
        return Aufruffehler{Fehlerart::BefehlUnbekannt, worte.constFirst()};
    }
    if (gesetzt("tour")) {
        return Aufruffehler{Fehlerart::ArgumentZuviel, worte.constFirst()};
    }
    for (const QString &wort : worte) {
        m_auftrag.dateien << ganzerPfad(wort);
    }
    return pruefeZugehoerigkeit(fuerFenster);
}

Aufrufleser::Befund Aufrufleser::leseFuerBefehl(const Befehlsform &form)
{
    if (Befund fehler = pruefeZugehoerigkeit(form.gruppe)) {
        return fehler;
    }
    m_auftrag.befehl = form.befehl;
    m_auftrag.eigenes = gesetzt("own");
    const QStringList argumente = m_leser.positionalArguments().mid(1);
    if (argumente.isEmpty()) {
        return Aufruffehler{form.fehlt, QLatin1String(form.wort)};
    }
    if (argumente.size() > form.hoechstens) {
        return Aufruffehler{Fehlerart::ArgumentZuviel, argumente[form.hoechstens]};
    }
    m_auftrag.name = argumente.constFirst();
    Befund fehler = leseForm();
    if (!fehler) {
        fehler = leseEnergie();
    }
    if (!fehler && argumente.size() > 1) {
        fehler = leseMenge(argumente[1]);
    }
    return fehler;
}

Aufrufleser::Befund Aufrufleser::pruefeZugehoerigkeit(unsigned gruppe) const
{
    for (const Option &option : optionen) {
        if ((option.fuer & gruppe) == 0 && gesetzt(option.name)) {
            return Aufruffehler{Fehlerart::OptionUnpassend,
                                getippt(m_argumente, QLatin1String(option.name))};
        }
    }
    return {};
}

Aufrufleser::Befund Aufrufleser::leseForm()
{
    if (!gesetzt("format")) {
        return {};
    }
    const auto *form = std::find_if(formen.begin(), formen.end(), [this](const auto &eine) {
        return angabe("format") == QLatin1String(eine.first);
    });
    if (form == formen.end()) {
        return Aufruffehler{Fehlerart::FormUnbekannt, angabe("format")};
    }
    m_auftrag.form = form->second;
    return {};
}

Aufrufleser::Befund Aufrufleser::leseEnergie()
{
    if (!gesetzt("energy")) {
        return {};
    }
    bool istZahl = false;
    m_auftrag.energiebedarf = QLocale::c().toInt(angabe("energy"), &istZahl);
    return istZahl && m_auftrag.energiebedarf > 0
               ? Befund()
               : Aufruffehler{Fehlerart::BedarfUngueltig, angabe("energy")};
}

/// Comma and point both stand before the decimals, as everywhere in the program.
Aufrufleser::Befund Aufrufleser::leseMenge(const QString &text)
{
    bool istZahl = false;
    QString mitPunkt = text;
    m_auftrag.gramm = QLocale::c().toFloat(mitPunkt.replace(u',', u'.'), &istZahl);
    return istZahl && std::isfinite(m_auftrag.gramm) && m_auftrag.gramm >= 0
               ? Befund()
               : Aufruffehler{Fehlerart::MengeUngueltig, text};
}

} // namespace

Aufruf leseAufruf(const QStringList &argumente)
{
    return Aufrufleser(argumente).lies();
}
