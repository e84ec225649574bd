#include "benchmarks/inputs/inputs.h"

namespace recastor {

PhraseGrammar SurveyWords() {
    return {
        {
            {"blank", {" "}},
            {"comma", {", "}},
            {"plus", {" + ", " + ", " + ", "\n    + "}},
            {"next-line", {"\n  /", "\n  /", "\n    /"}},
            // who was asked
            {"person",
             {"sex", "agegrp", "region", "educ", "income3", "marital", "urban", "hhsize", "occup",
              "branch", "since", "wave", "language", "children"}},
            // what was asked
            {"question",
             {"q[1-99]", "q[1-99]", "q[1-40]a", "q[1-40]b", "q[1-40]_[1-9]", "v[100-999]",
              "satisf[1-12]", "trust[1-9]", "usage[1-20]", "worry[1-9]", "rating.[1-9]"}},
            // what was measured
            {"measure",
             {"income", "age", "spending", "visits", "hours", "score[1-9]", "rent", "distance",
              "weight[1-3]", "turnover"}},
            {"variable", {"[question]", "[question]", "[person]", "[measure]"}},
            // texts, with a word in another script now and then
            {"topic",
             {"Satisfaction, all in all", "Reasons for the last visit", "Contact with the branch",
              "Newspapers read last week", "Greatest worries", "Use of public transport",
              "Monthly income of the household", "Trust in institutions", "Health in general",
              "Hours of work", "Customers' complaints", "Who decides at home",
              "Länge des Gesprächs", "Café, Kino, Theater", "Répondants de moins de 30 ans"}},
            {"text-word", {"very",     "satisfied",         "often",       "seldom",    "never",
                           "with the", "service",           "price",       "branch",    "region",
                           "of the",   "household",         "in the last", "week",      "year",
                           "or more",  "(several answers)", "don't know",  "no answer", "total"}},
            {"answer",
             {"Very satisfied", "Satisfied", "Neither", "Dissatisfied", "Yes", "No", "Often",
              "Seldom", "Never", "Don''t know", "18 to 29", "30 to 44", "45 to 64", "65 and over",
              "Upper secondary", "University", "Größere Stadt", "Under 1000", "2500 and over"}},
            {"literal", {"'[topic-quoted]'", "'[answer]'", "\"[topic]\""}},
            {"topic-quoted",
             {"Satisfaction by branch", "Newspapers read", "Trust in institutions ([1-12] of 12)",
              "Worries and hopes", "Mean income", "Visits, per cent", "Wave [1-30], weighted"}},
            {"number", {"[0-9]", "[10-99]", "[100-9999]", "[0-99].[1-9]", "[0-9].[10-99]"}},
        },
        {
            {"phrase", "text-word", "blank", 4, 10},
            {"variables", "variable", "blank", 1, 6},
            {"questions", "question", "blank", 2, 8},
            {"persons", "person", "blank", 1, 3},
            {"measures", "measure", "blank", 1, 3},
        },
    };
}

} // namespace recastor
