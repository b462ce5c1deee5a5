#include "Planzeilen.h"

const Datenmodul *lebensmittelVon(const QString &name, const Lebensmittelverzeichnis &eingebaute,
                                  const Lebensmittelverzeichnis &eigene)
{
    for (const Lebensmittelverzeichnis *verzeichnis : {&eingebaute, &eigene}) {
        const auto gefunden = verzeichnis->constFind(name);
        if (gefunden != verzeichnis->constEnd()) {
            return &*gefunden;
        }
    }
    return nullptr;
}

std::vector<Planzeile> planzeilen(const Planliste &plan, const Lebensmittelverzeichnis &eingebaute,
                                  const Lebensmittelverzeichnis &eigene)
{
    std::vector<Planzeile> zeilen;
    zeilen.reserve(static_cast<std::size_t>(plan.PlanArray.size()));
    for (qsizetype i = 0; i < plan.PlanArray.size(); ++i) {
        zeilen.push_back(
            {lebensmittelVon(plan.PlanArray[i], eingebaute, eigene), plan.mengenarray[i]});
    }
    return zeilen;
}
