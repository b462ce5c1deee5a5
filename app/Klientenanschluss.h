#pragma once

#include "Kartei.h"
#include "Klientenfenster.h"
#include "Platzgedaechtnis.h"
#include "Tischklient.h"
#include "Tueren.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

class AnthroController;
class AppController;

/// Joins the clients to the desk: the way to their window in the menus, the name of the client at
/// the desk over the windows and on what is printed, and the store that the settings name. The desk
/// itself knows nothing of clients.
class Klientenanschluss : public QObject
{
    Q_OBJECT

public:
    /// What stands at the head of every print: for whom it is. Empty while nobody sits at the desk.
    using Kopfzeile = std::shared_ptr<QString>;

    /// The same doors, with the head on everything that is printed.
    static Tueren mitKopfzeile(Tueren tueren, const Kopfzeile &kopfzeile);

    /// The controllers outlive this object.
    Klientenanschluss(AppController &hauptfenster, AnthroController &rechner, Tueren tueren,
                      Kopfzeile kopfzeile);

    /// Joins from now on. Nothing of the store is read before the window is first opened.
    void beginne();

    /// The clients' window; made when it is first asked for.
    Klientenfenster &fenster();
    /// The same, null as long as nobody has asked.
    Klientenfenster *offenes() const { return m_fenster.get(); }

    /// Another language is spoken.
    void folgeSprache();

    /// The part of the settings about where the clients are kept.
    QWidget *einstellung();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user of a window wants the handbook.
    void hilfeGewuenscht(const QWidget *fenster);

private:
    Kartei::Ort neuerOrt() const;
    QString datei() const;
    void nimmVorgemerktesAuf();
    void sageVorgemerktes();
    void baueMenue();
    void bereitePlan();
    void betitle();
    void zeigeFruehereStaende();
    void holeZurueck(const QString &kopie);
    std::optional<QString> wechsle();
    bool darfEnden();
    bool stehtAufServer() const;
    void beginneUmzug();
    void bieteUmzugAn();
    void zieheUm(Klientenspeicher &von);
    void sage(const Hinweis &hinweis);
    Klientenfenstertueren fenstertueren();

    AppController &m_hauptfenster;
    Tueren m_tueren;
    Kopfzeile m_kopfzeile;

public:
    Kartei kartei;
    Tischklient tisch;

private:
    std::unique_ptr<Klientenfenster> m_fenster;
    std::unique_ptr<Platzgedaechtnis> m_platz; ///< of that window; goes before it
};
