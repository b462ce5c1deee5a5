#pragma once

#include "Rezeptablage.h"
#include "Rezeptfenster.h"
#include "Rezeptfolge.h"
#include "Stoffwissen.h"
#include "Tueren.h"

#include <QObject>
#include <QPointer>

#include <functional>

class AppController;
class Hinweisstreifen;
class Tageanschluss;

/// Joins the recipes to the desk: rows of the plan or of a meal become an own food, the recipe
/// stays with it, and follows when an ingredient changes.
class Rezeptanschluss : public QObject
{
    Q_OBJECT

public:
    /// `wissen` tells what is known of the foods, the dishes among them. All outlive this object.
    Rezeptanschluss(AppController &hauptfenster, Tageanschluss &tage, Tueren tueren,
                    std::function<const Stoffwissen &()> wissen);

    /// Joins from now on. The recipes are not read before the first is asked for.
    void beginne();

    /// The recipes of the own foods that there are. What became of their file is told when they
    /// are first asked for.
    Rezepte rezepte();
    /// Lets the dishes follow their ingredients as they are now.
    void zieheNach();
    /// Own foods are as they were before, or again as they were after: the recipes go with their
    /// dishes. No dish changes by it, for that would be a new step, and what can be repeated gone.
    void folgeVerlauf();

    /// The window of a new recipe with these ingredients, in front of `davor`. False: another one
    /// is open, which is told.
    bool beginneRezept(const QList<Rezeptzutat> &zutaten, QWidget *davor);
    /// The window of the recipe of the own food on display; of a new one where it has none.
    void zeigeRezept();
    /// The window of a recipe that is open; null where none is.
    Rezeptfenster *offenes() const { return m_fenster; }

    /// Another language is spoken.
    void folgeSprache();

    /// The program does not end without the recipe that the user goes on with.
    bool eventFilter(QObject *watched, QEvent *event) override;

    Rezeptablage ablage;

Q_SIGNALS:
    /// There are other recipes, or other dishes.
    void geaendert();

private:
    void bereitePlan();
    void bereiteTage();
    void ausDemPlan();
    void ausDerMahlzeit();
    Rezepttueren fenstertueren();
    bool oeffne(const Rezept &rezept, QWidget *davor);
    void zeigeHeutige();
    Nachzuege nachzuege(const Rezepte &alle);
    void setzePortion(const QString &schluessel, std::optional<double> gramm,
                      std::optional<double> bisher);
    bool sichere(const Rezept &rezept, const Datenmodul &satz);
    void sageFehlende(const QStringList &namen);
    void sageZustand();
    void sage(const QString &text);
    Hinweisstreifen &streifen() const;

    AppController &m_hauptfenster;
    Tageanschluss &m_tage;
    Tueren m_tueren;
    std::function<const Stoffwissen &()> m_wissen;
    QPointer<Rezeptfenster> m_fenster;
    QString m_offenes; ///< whose recipe it is; empty: of a new dish
    /// The recipes that were kept since the program began, the last at the end.
    QHash<QString, QList<Rezept>> m_gesicherte;
    QStringList m_gesagte;  ///< dishes that don't follow, as they were told last
    bool m_zieht = false;   ///< what changes now are the dishes that follow
    bool m_gefragt = false; ///< for the recipes
};
