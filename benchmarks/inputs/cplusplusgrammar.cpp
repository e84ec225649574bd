#include "benchmarks/inputs/inputs.h"

namespace recastor {

PhraseGrammar CPlusPlusGrammar() {
    return {
        {
            {"command",
             {"// [sentence]\nstatic int [name][1-999](int [name], const "
              "std::string& [name][1-9])\n{[statements]\n  return [sum];\n}\n\n",
              "int [name][1-999](int [name],int [name][1-9] = [0-99])\n{\n[statements]\n"
              "return [call];\n}\n\n"}},
            {"statement",
             {"  int [name][1-99] = [sum];", "if ([name] [comparison] [sum]) [name] = [call];",
              "for (int i=0; i<[1-99]; ++i) [name] += [call];", "    // [sentence]",
              "  std::cout << \"[sentence]\" << [name] << [sum] << std::endl;", "[call];"}},
            {"sum", {"[value]", "[value] + [value]*[value]", "([value]-[sum]) / [value]"}},
            {"value", {"[name]", "[0-999]", "[name].size()", "[name]->[name]"}},
            {"call", {"[name]([value])", "[name]([value],[sum], [value])", "[name](\"[word]\")"}},
            {"comparison", {"==", "<", ">=", "!="}},
            {"name", {"total", "first", "table", "column_count", "rowIndex", "value", "result"}},
            {"word", {"the", "sum", "of", "all", "rows", "that", "were", "counted", "before"}},
            {"blank", {" "}},
            {"line-break", {"\n"}},
        },
        {
            {"sentence", "word", "blank", 3, 12},
            {"statements", "statement", "line-break", 2, 12},
        },
    };
}

} // namespace recastor
