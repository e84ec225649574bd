/// Charts made by hand, complete as the parser completes them, and the lines of their GPL.
#pragma once

#include "platform/zelkwigr/chartmodel.h"

#include <string>
#include <vector>

namespace recastor {

ChartVariable Named(const std::string& name);
ChartDimension ScaleDimension(const std::string& name);
ChartDimension CategoryDimension(const std::string& name);

/// `$count`, `$pct` and `$case`; the last one is categorical.
ChartVariable CountVariable();
ChartVariable PercentVariable();
ChartVariable CaseVariable();
ChartDimension CountDimension();
ChartDimension PercentDimension();
ChartDimension CaseDimension();

SummaryFunction Of(Statistic statistic);
SummaryFunction Percentile(double percent);
SummaryFunction NumberOf(Condition condition, double first, double second = 0);
SummaryFunction PercentageOf(Condition condition, double first, double second = 0);

/// Elements of a measure that is a variable: with the function that they take by default.
Bar MeanBar();
Line MeanLine();
Area MeanArea();
Pie SumPie();

/// `element` over the categorical variable x and the scale variable y; X1 is scale for points, fit
/// lines and histograms, and a histogram counts.
ChartModel ChartOf(const ChartElement& element);

/// A pie of the sums of y that slices by the variable c.
ChartModel PieChart();

/// The whole GPL block.
std::string GplText(const ChartModel& chart);

/// The GPL lines that begin with `keyword` ("GUIDE"), without it.
std::vector<std::string> GplLines(const ChartModel& chart, const std::string& keyword);

} // namespace recastor
