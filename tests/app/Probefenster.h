#pragma once

#include "Einstellungen.h"
#include "Oberflaeche.h"

#include <QHash>
#include <QTemporaryDir>
#include <QTranslator>

#include <functional>
#include <memory>
#include <utility>

/// A home folder with all that the main window needs, thrown away at the end. Two windows opened
/// on one home, one after the other, are a program that was started twice.
class Probeheim
{
public:
    /// A home without any file, at a German desk.
    Probeheim();

    QString tabelle() const { return m_ordner.filePath(QStringLiteral("DatabaseIII.daten")); }
    QString eigeneDatei() const;
    QString einstellungsdatei() const;
    QString pfad(const QString &name) const { return m_ordner.filePath(name); }

    void schreibeTabelle(const Lebensmittelverzeichnis &lebensmittel) const;
    void schreibeEigene(const Lebensmittelverzeichnis &lebensmittel) const;

    Einstellungen &einstellungen() { return *m_einstellungen; }
    /// What the settings' file holds on the disk, past everything that is still in memory.
    QVariant aufDerPlatte(const QString &schluessel) const;
    /// Reads the settings from the disk as a new start of the program does. No window is open then.
    void liesEinstellungenNeu();

    /// The doors of this home. Messages are kept in `meldungen` and answered from `antworten`;
    /// `beiMeldung` runs while one is on screen.
    Tueren tueren();
    QList<Meldung> meldungen;
    QList<int> antworten;
    std::function<void()> beiMeldung = [] {
    };
    QString wertungstabelle; ///< path of the table that explains ratings; none does while empty
    Drucktuer drucke;        ///< the door that prints; nothing does while there is none
    Pdftuer alsPdf;          ///< the door that saves a PDF; nothing does while there is none
    /// The door that changes the language; it stays while there is none.
    std::function<void(const QString &)> sprich;
    Dateituer waehleDatei; ///< the door that asks for a file; nobody is asked while there is none
    /// The lines that went to the system log; `beimProtokoll` runs at each.
    QStringList protokoll;
    std::function<void()> beimProtokoll = [] {
    };

private:
    QTemporaryDir m_ordner;
    int m_starts = 0;
    std::unique_ptr<Einstellungen> m_einstellungen;
};

/// The main window, started and shown, and the hands of its user.
class Probefenster
{
public:
    explicit Probefenster(Probeheim &heim);

    AppController *operator->() const { return m_controller; }
    AppController &controller() const { return *m_controller; }
    AnthroController &rechner() const { return m_oberflaeche->rechner; }
    Oberflaeche &oberflaeche() const { return *m_oberflaeche; }

    /// Clicks the cell with the mouse, after scrolling to it.
    void klicke(int zeile, int spalte) const;
    /// Clicks below the last row.
    void klickeDaneben() const;
    /// The middle of the cell in the coordinates of the table's viewport.
    QPoint mitte(int zeile, int spalte) const;

    /// Presses an item of the toolbar.
    void drueckeWerkzeug(const QString &kennung) const;

    /// Types into the search box in place of what stood there, and Return.
    void suche(const QString &text) const;

    /// Types an amount behind the slider and presses Return.
    static void tippeMenge(const Schieber &schieber, const QString &gramm);
    void tippeMenge(const QString &gramm) const { tippeMenge(*(*this)->lebensmittelmenge, gramm); }

    /// What a field shows once the window has come to rest, with a plain blank before the unit.
    static QString text(const QLineEdit &feld);
    /// How the table pictures a cell.
    Zellenbild zelle(int zeile, int spalte) const;

    /// The identifier of the tab in front.
    QString ansicht() const;
    /// The texts of the seventeen values, in the record's order; those of hidden fields are empty.
    QStringList gezeigteWerte() const;

private:
    std::unique_ptr<Oberflaeche> m_oberflaeche;
    AppController *m_controller;
};

/// The table's columns as a click counts them.
inline constexpr int inName = 0;
inline constexpr int inEigen = 1;
inline constexpr int inSuch = 2;

using Wertliste = QList<std::pair<Naehrwert, float>>;

/// A food with these values, all others 0, and its ratings in the record's order.
Datenmodul lebensmittel(const QString &name, const Wertliste &werte = {},
                        const QStringList &urteile = {QStringLiteral("+"), QStringLiteral("0"),
                                                      QStringLiteral("-"), QStringLiteral("+")});

/// The foods by their names.
Lebensmittelverzeichnis verzeichnis(const QList<Datenmodul> &lebensmittel);

/// All that a record holds, to be compared and read: its name, its values to the last bit, its
/// ratings.
QStringList inhalt(const Datenmodul &lebensmittel);

/// The same for all foods of a store, each with its key.
QList<QStringList> inhalt(const Lebensmittelverzeichnis &lebensmittel);

/// The name of the food in this row of a counted table: "Speise 0007".
QString zaehlname(int zeile);

/// As many foods as rows are wanted, named by their row, with 1 kcal more in each than in the last
/// (row 0 has 1 kcal) and 10 g of protein.
Lebensmittelverzeichnis zaehltabelle(int zeilen);

/// A string table of a few words, in force as long as it lives.
class Probeuebersetzer : public QTranslator
{
public:
    explicit Probeuebersetzer(QHash<QString, QString> worte);
    ~Probeuebersetzer() override;
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }

private:
    QHash<QString, QString> m_worte;
};

/// Presses the left button, moves the mouse in a direction as far as it takes for a drag to start,
/// then to the target, and lets go. The window system's own events are used, so that the drag is a
/// real one.
void ziehe(const QWidget &von, const QPoint &start, const QWidget &nach, const QPoint &ziel,
           const QPoint &richtung = QPoint(0, 1));

/// Chooses the platform without a display on which a drag is a real one ("offscreen" ends every
/// drag as soon as it begins). Called before the application is made.
void mitEchtemZiehen();
