#include "Wertungsregeln.h"

#include <algorithm>
#include <string_view>

const std::vector<Quelle> &quellen()
{
    static const std::vector<Quelle> liste = {
        {"Own", "Mahlberg's own limit; the page says why."},
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
        {"EULAR-2016",
         "Richette P et al. 2016 updated EULAR evidence-based recommendations for the "
         "management of gout. Annals of the Rheumatic Diseases 2017; 76: 29-42."},
        {"ACR-2020", "FitzGerald JD et al. 2020 American College of Rheumatology Guideline for the "
                     "Management of Gout. Arthritis Care and Research 2020; 72: 744-760."},
        {"Choi-2004", "Choi HK et al. Purine-rich foods, dairy and protein intake, and the risk of "
                      "gout in men. New England Journal of Medicine 2004; 350: 1093-1103."},
        {"Choi-2008", "Choi HK, Curhan G. Soft drinks, fructose consumption, and the risk of gout "
                      "in men: prospective cohort study. BMJ 2008; 336: 309-312."},
        {"DGE-2024", "Deutsche Gesellschaft für Ernährung. Food-based recommendations of 2024: at "
                     "most 300 g of meat and sausage a week."},
        {"DGE-Alkohol-2024",
         "Richter M et al. Alkohol: Zufuhr in Deutschland, gesundheitliche sowie soziale Folgen "
         "und Ableitung von Handlungsempfehlungen. Position of the Deutsche Gesellschaft für "
         "Ernährung. Ernährungs Umschau 2024; 71."},
        {"S3-Gicht-2024", "German guideline on gout of 2024."},
        {"ACU", "Table \"Total purines in mg uric acid/100 g\", as published by acumedico.com and "
                "by https://eatoutwithgout.com/purine-and-gout-printable-gout-food-list/"},
        {"ZH", "zeit-heute.de. Tabellen und Listen zur Orientierung. "
               "https://zeit-heute.de/tabellen-und-listen-zur-orientierung/amp"},
        {"FH", "FoodHealth.info. Purine food sources. http://foodhealth.info/purine/"},
        {"MV",
         "mensvita.de. Besondere Ernährung bei Gicht. "
         "https://www.mensvita.de/lifestyle/ernaehrung/diaet/besondere-ernaehrung-bei-gicht/"},
        {"USDA23", "USDA and ODS-NIH Database for the Purine Content of Foods. US Department of "
                   "Agriculture, 2023. It cites the laboratories that follow."},
        {"BRU88", "Brulé D et al. Purine content of selected Canadian food products. Journal of "
                  "Food Composition and Analysis 1988; 1: 130-138."},
        {"CLI76", "Clifford AJ, Story DL. Levels of purines in foods and their metabolic effects "
                  "in rats. Journal of Nutrition 1976; 106: 435-442."},
        {"FUK13",
         "Fukuuchi T et al. Purine content of beer. Analytical Sciences 2013; 29: 511-517."},
        {"HAV10", "Havlik J et al. Dietary purines in vegetarian meat analogues. Journal of the "
                  "Science of Food and Agriculture 2010; 90: 2352-2357."},
        {"KAN08", "Kaneko K et al. Nucleosides, Nucleotides and Nucleic Acids 2008; 27: 628-630."},
        {"KAN09", "Kaneko K et al. Purine contents of alcoholic beverages. Biomedical "
                  "Chromatography 2009; 23: 858-864."},
        {"KAN14", "Kaneko K et al. Total purine and purine base content of common foodstuffs for "
                  "facilitating nutritional therapy for gout and hyperuricemia. Biological and "
                  "Pharmaceutical Bulletin 2014; 37: 709-721."},
        {"KAN20", "Kaneko K et al. Purine content of 80 food products. Nucleosides, Nucleotides "
                  "and Nucleic Acids 2020; 39: 1449-1457."},
        {"KLA02", "Klampfl CW et al. Purines and pyrimidines in beer. Analytica Chimica Acta 2002; "
                  "454: 185-191."},
        {"QU17", "Qu X et al. Purines in seafood. Journal of the Science of Food and Agriculture "
                 "2017; 97: 520-525."},
        {"SAR85", "Sarwar G et al. 1985, purines of minced turkey, as the USDA cites it."},
        {"YOU80", "Young LL. 1980, purines of poultry, as the USDA cites it."},
        {"YOU82", "Young LL. 1982, purines of cooked poultry, as the USDA cites it."},
        {"YOU83", "Young LL. 1983, purines of poultry, as the USDA cites it."},
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
