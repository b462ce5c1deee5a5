#pragma once

#include <QDir>
#include <QStringList>

class AnthroController;
class AppController;
class Oberflaeche;
class QWidget;

/// A short tour of the program without anyone at the keys: it starts, chooses foods, sets amounts,
/// goes through the views, searches, keeps a food, works out body measures, plans a day, advises a
/// client, types in what they ate and looks into it, and leaves a picture of each stop and a
/// summary in plain text. The pictures in the README and the handbook come from it.
class Rundgang
{
public:
    /// `meldungen` holds what the program had to say and nobody was there to read; each stop takes
    /// its messages from there into the summary. Null: there are none.
    Rundgang(Oberflaeche &oberflaeche, const QDir &ordner, QStringList *meldungen = nullptr);

    /// Goes the whole way. False when a picture or the summary could not be written.
    bool gehen();

private:
    void waehle(const QString &name);
    void setzeMenge(int gramm);
    void suche();
    void sichereEigenes();
    void rechne();
    void plane();
    void berate();
    void zeichneAuf();
    void blickeHinein();
    void reihe();
    void kocheAus();
    void halt(const QString &name, const QString &worte);
    void haltBeimPlan(const QString &name, const QString &worte);
    void haltBeimKlienten(const QString &name, const QString &worte);
    void haltBeiTagen(QWidget &fenster, const QString &name, const QString &worte);
    void haltBeimEinblick(QWidget &fenster, const QString &name, const QString &worte);
    QString bildname(const QString &name) const;
    void bild(QWidget &fenster, const QString &name);
    QString angezeigteWerte() const;
    QStringList neueMeldungen();

    Oberflaeche &m_oberflaeche;
    AppController &m_controller;
    AnthroController &m_rechner;
    QDir m_ordner;
    QStringList *m_meldungen;
    QStringList m_bericht;
    int m_halt = 0;
    bool m_gelungen = true;
};
