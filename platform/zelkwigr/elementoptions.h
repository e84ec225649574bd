/// The keywords that several elements share.
#pragma once

#include "platform/zelkwigr/chartelements.h"
#include "platform/zelkwigr/chartoptions.h"

#include <utility>

namespace recastor {

inline constexpr Flag<ElementLabels> kLabelWords[] = {
    {"INSIDE", nullptr},
    {"OUTSIDE", nullptr},
    {"VAL", &ElementLabels::value},
    {"N", &ElementLabels::count},
    {"PCT", &ElementLabels::percent},
};

/// What an old chart wrote beside its categories.
inline constexpr Flag<ElementLabels> kSideLabelWords[] = {
    {"CAT", nullptr},
    {"N", nullptr},
    {"PCT", nullptr},
};

inline constexpr Keyword<Interpolation> kInterpolations[] = {
    {"STRAIGHT", Interpolation::kStraight},   {"LSTEP", Interpolation::kLeftStep},
    {"CSTEP", Interpolation::kCenterStep},    {"RSTEP", Interpolation::kRightStep},
    {"LJUMP", Interpolation::kLeftJump},      {"CJUMP", Interpolation::kCenterJump},
    {"RJUMP", Interpolation::kRightJump},     {"SPLINE", Interpolation::kSpline},
    {"LAGRANGE3", Interpolation::kLagrange3}, {"LAGRANGE5", Interpolation::kLagrange5},
};

inline constexpr Keyword<Break> kBreaks[] = {{"MISSING", Break::kMissing}, {"NONE", Break::kNone}};

inline constexpr Keyword<bool> kAutomatic[] = {{"AUTO", true}};

/// n, (n) or AUTO, which is none.
inline std::optional<double> ReadBaseline(ChartTokenReader& reader) {
    if (reader.AtWord()) {
        reader.Choice(kAutomatic);
        return std::nullopt;
    }
    return reader.NumberOrInParentheses();
}

template <class Element>
void SetLabels(ChartTokenReader& reader, Element& element) {
    element.labels = ElementLabels();
    ReadFlags(reader, kLabelWords, element.labels);
}

template <class Element>
void SetBaseline(ChartTokenReader& reader, Element& element) {
    element.baseline = ReadBaseline(reader);
}

template <class Element>
void SetInterpolation(ChartTokenReader& reader, Element& element) {
    element.interpolation = reader.Choice(kInterpolations);
}

template <class Element>
void SetBreak(ChartTokenReader& reader, Element& element) {
    element.breaks = reader.Choice(kBreaks);
}

template <class Element>
void IgnoreLabels(ChartTokenReader& reader, Element&) {
    ElementLabels ignored;
    ReadFlags(reader, kLabelWords, ignored);
}

template <class Element>
void IgnoreSideLabels(ChartTokenReader& reader, Element&) {
    ElementLabels ignored;
    ReadFlags(reader, kSideLabelWords, ignored);
}

template <class Element>
void IgnoreBaseline(ChartTokenReader& reader, Element&) {
    ReadBaseline(reader);
}

/// A number that must lie between two others or be one of them.
inline double NumberBetween(ChartTokenReader& reader, double least, double most) {
    const double value = reader.Number();
    reader.Require(least <= value && value <= most);
    return value;
}

} // namespace recastor
