#include "platform/zelkwigr/gplnames.h"

#include "platform/zelkbase/smallobjects.h"
#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkwigr/asciicase.h"

#include <algorithm>

namespace recastor {

namespace {

/// How a line means a variable: a label takes it as the others do.
enum class Use { kScale, kCategory, kLabel };

struct VariableUse {
    const ChartVariable* variable;
    Use use;
};

using Uses = SmallVector<VariableUse>;

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

const std::string kCaseNumberBase = "casenum";

/// The case number is a variable that the data need not hold.
bool IsCaseNumber(const std::string& dataName) {
    return EqualWithoutCase(dataName, "$casenum");
}

std::string MakeGplName(std::string_view base) {
    std::string name = base.empty() || !IsLetter(base.front()) ? "v_" : "";
    name += base;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !IsLetter(c) && !IsDigit(c); }, '_');
    return name;
}

Use UseOf(const ChartDimension& dimension) {
    return IsCategorical(&dimension) ? Use::kCategory : Use::kScale;
}

/// Gathers the uses of a chart's variables in the order of their lines.
class UseList {
public:
    explicit UseList(const ChartFacts& facts) {
        m_uses.reserve(kMostPositionsAndAesthetics + facts.chart.panels.size());
        AddPosition(facts);
        AddAesthetics(facts);
        for (const ChartVariable& panel : facts.chart.panels) {
            Add(panel, Use::kCategory);
        }
        if (facts.chart.pointLabel && facts.kinds.Has(ElementKind::kScatter)) {
            Add(*facts.chart.pointLabel, Use::kLabel);
        }
        if (facts.chart.caseLabel && facts.kinds.Has(ElementKind::kBox)) {
            Add(*facts.chart.caseLabel, Use::kLabel);
        }
    }

    const Uses& All() const { return m_uses; }

private:
    static constexpr std::size_t kMostPositionsAndAesthetics = 8; // and a label or two

    void AddPosition(const ChartFacts& facts) {
        const ChartModel& chart = facts.chart;
        if (facts.form == ChartForm::kPie) {
            if (facts.slice == Find(chart.x1)) {
                AddDimension(facts.slice);
            }
            Add(*facts.measure, Use::kScale);
            return;
        }
        AddDimension(Find(chart.x1));
        AddDimension(Find(chart.x2));
        AddDimension(facts.y);
    }

    /// Fit lines show no aesthetics; one of them may split the lines.
    void AddAesthetics(const ChartFacts& facts) {
        const bool shown = !facts.kinds.HasOnly({ElementKind::kFitLine});
        const bool sizes = facts.kinds.HasAnyOf({ElementKind::kScatter, ElementKind::kLine});
        const ChartDimension* const color = Find(facts.chart.color);
        const ChartDimension* const style = Find(facts.chart.style);
        const ChartDimension* const size = Find(facts.chart.size);
        AddDimension(shown || color == facts.split ? color : nullptr);
        AddDimension(shown || style == facts.split ? style : nullptr);
        AddDimension(sizes || size == facts.split ? size : nullptr);
    }

    void AddDimension(const ChartDimension* dimension) {
        if (dimension != nullptr) {
            Add(dimension->variable, UseOf(*dimension));
        }
    }

    void Add(const ChartVariable& variable, Use use) {
        if (!IsCounted(variable)) {
            m_uses.push_back({&variable, use});
        }
    }

    Uses m_uses;
};

} // namespace

GplNames::GplNames() {
    constexpr std::size_t kUsualCount = 4; // the source's name and those of few variables
    m_taken.reserve(kUsualCount);
    m_taken.emplace_back("s");
}

std::string GplNames::Free(std::string_view base, std::string_view suffix) const {
    const auto isTaken = [this](const std::string& name) {
        return std::any_of(m_taken.begin(), m_taken.end(),
                           [&](const std::string& taken) { return EqualWithoutCase(taken, name); });
    };
    std::string name = MakeGplName(base).append(suffix);
    if (!isTaken(name)) {
        return name;
    }
    int number = 2;
    const auto numbered = [&] { return name + '_' + std::to_string(number); };
    while (isTaken(numbered())) {
        ++number;
    }
    return numbered();
}

std::string GplNames::Take(std::string_view base, std::string_view suffix) {
    m_taken.push_back(Free(base, suffix));
    return m_taken.back();
}

bool NamesVariables(const ChartFacts& facts) {
    const UseList list(facts);
    return std::any_of(list.All().begin(), list.All().end(), [](const VariableUse& each) {
        return !IsCaseNumber(DataName(*each.variable));
    });
}

GplVariables::GplVariables(const ChartFacts& facts) {
    const UseList list(facts);
    const Uses& uses = list.All();
    m_entries.reserve(uses.size());
    for (auto use = uses.begin(); use != uses.end(); ++use) {
        const auto isSame = [&](const VariableUse& other) {
            return IsSameVariable(*other.variable, *use->variable);
        };
        const auto isMeantAs = [&](Use meaning) {
            return std::any_of(use, uses.end(), [&](const VariableUse& other) {
                return other.use == meaning && isSame(other);
            });
        };
        if (std::any_of(uses.begin(), use, isSame)) {
            continue;
        }
        const std::string& dataName = DataName(*use->variable);
        const std::string& base = IsCaseNumber(dataName) ? kCaseNumberBase : dataName;
        Entry& entry = m_entries.emplace_back();
        entry.dataName = dataName;
        const bool isScale = isMeantAs(Use::kScale);
        if (isScale) {
            entry.scaleName = m_names.Take(base);
        }
        if (!isScale || isMeantAs(Use::kCategory)) {
            entry.categoryName = m_names.Take(base, isScale ? "_c" : "");
        }
    }
}

const GplVariables::Entry& GplVariables::EntryOf(const ChartVariable& variable) const {
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& each) {
        return EqualWithoutCase(each.dataName, DataName(variable));
    });
    ZELK_ASSERT(entry != m_entries.end());
    return *entry;
}

const std::string& GplVariables::ScaleName(const ChartVariable& variable) const {
    return EntryOf(variable).scaleName;
}

const std::string& GplVariables::CategoryName(const ChartVariable& variable) const {
    return EntryOf(variable).categoryName;
}

const std::string& GplVariables::LabelName(const ChartVariable& variable) const {
    const Entry& entry = EntryOf(variable);
    return entry.scaleName.empty() ? entry.categoryName : entry.scaleName;
}

const std::string& GplVariables::NameOf(const ChartDimension& dimension) const {
    return IsCategorical(&dimension) ? CategoryName(dimension.variable)
                                     : ScaleName(dimension.variable);
}

std::string GplVariables::DataNames() const {
    std::string names;
    for (const Entry& entry : m_entries) {
        if (!IsCaseNumber(entry.dataName)) {
            names += names.empty() ? "" : " ";
            names += entry.dataName;
        }
    }
    return names;
}

} // namespace recastor
