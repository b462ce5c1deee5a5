#include "Wertungsregeln.h"

#include <algorithm>
#include <string_view>

const std::vector<Quelle> &quellen()
{
    static const std::vector<Quelle> liste = {
        {"WHO-2012", "WHO. Guideline: Sodium intake for adults and children. Geneva: World Health "
                     "Organization, 2012."},
        {"WHO-2015", "WHO. Guideline: Sugars intake for adults and children. Geneva: World Health "
                     "Organization, 2015."},
        {"EU-1924", "Regulation (EC) No 1924/2006 on nutrition and health claims made on foods, "
                    "Annex."},
        {"EU-116", "Commission Regulation (EU) No 116/2010 amending Regulation (EC) No 1924/2006 "
                   "with regard to the list of nutrition claims."},
        {"EU-1169", "Regulation (EU) No 1169/2011 on the provision of food information to "
                    "consumers."},
        {"FSA-2013", "Department of Health, Food Standards Agency, devolved administrations in "
                     "Scotland, Northern Ireland and Wales, British Retail Consortium. Guide to "
                     "creating a front of pack (FoP) nutrition label for pre-packed products sold "
                     "through retail outlets. 2013."},
        {"SDIL-2017", "United Kingdom. Finance Act 2017, Part 2: Soft Drinks Industry Levy."},
        {"WCRF-2007", "World Cancer Research Fund / American Institute for Cancer Research. Food, "
                      "Nutrition, Physical Activity, and the Prevention of Cancer: a Global "
                      "Perspective. Washington DC: AICR, 2007."},
        {"Rolls-2005", "Rolls BJ. The Volumetrics Eating Plan. New York: HarperCollins, 2005."},
        {"BE", "Broteinheit, the German exchange unit of 12 g available carbohydrate; today also "
               "10 to 12 g (Kohlenhydrateinheit)."},
        {"Mozaffarian-2013", "Mozaffarian RS et al. Identifying whole grain foods: a comparison of "
                             "different approaches for selecting more healthful whole grain "
                             "products. Public Health Nutrition 2013; 16: 2255-2264."},
        {"DNSG-2023",
         "Diabetes and Nutrition Study Group of the European Association for the Study "
         "of Diabetes. Evidence-based European recommendations for the dietary "
         "management of diabetes. Diabetologia 2023; 66: 965-985."},
        {"ADA-2024", "American Diabetes Association Professional Practice Committee. Facilitating "
                     "Positive Health Behaviors and Well-being to Improve Health Outcomes: "
                     "Standards of Care in Diabetes 2024. Diabetes Care 2024; 47 (Suppl 1): "
                     "S77-S110."},
        {"SFK-2016", "Souci SW, Fachmann W, Kraut H. Food Composition and Nutrition Tables. 8th "
                     "edition. Stuttgart: MedPharm, 2016."},
        {"Kaneko-2014", "Kaneko K et al. Total purine and purine base content of common foodstuffs "
                        "for facilitating nutritional therapy for gout and hyperuricemia. "
                        "Biological and Pharmaceutical Bulletin 2014; 37: 709-721."},
        {"EULAR-2016",
         "Richette P et al. 2016 updated EULAR evidence-based recommendations for the "
         "management of gout. Annals of the Rheumatic Diseases 2017; 76: 29-42."},
        {"ACR-2020", "FitzGerald JD et al. 2020 American College of Rheumatology Guideline for the "
                     "Management of Gout. Arthritis Care and Research 2020; 72: 744-760."},
        {"Choi-2004", "Choi HK et al. Purine-rich foods, dairy and protein intake, and the risk of "
                      "gout in men. New England Journal of Medicine 2004; 350: 1093-1103."},
        {"Choi-2008", "Choi HK, Curhan G. Soft drinks, fructose consumption, and the risk of gout "
                      "in men: prospective cohort study. BMJ 2008; 336: 309-312."},
        {"ESC-2021", "Visseren FLJ et al. 2021 ESC Guidelines on cardiovascular disease prevention "
                     "in clinical practice. European Heart Journal 2021; 42: 3227-3337."},
        {"ESC-EAS-2019", "Mach F et al. 2019 ESC/EAS Guidelines for the management of "
                         "dyslipidaemias. European Heart Journal 2020; 41: 111-188."},
        {"DGE-2024", "Richter M et al. Alkohol: Zufuhr in Deutschland, gesundheitliche sowie "
                     "soziale Folgen und Ableitung von Handlungsempfehlungen. Position of the "
                     "Deutsche Gesellschaft für Ernährung. Ernährungs Umschau 2024; 71."},
    };
    return liste;
}

const Quelle *quelle(const char *schluessel)
{
    const auto &alle = quellen();
    const auto gefunden = std::find_if(alle.begin(), alle.end(), [&](const Quelle &eine) {
        return std::string_view(eine.schluessel) == schluessel;
    });
    return gefunden == alle.end() ? nullptr : &*gefunden;
}
