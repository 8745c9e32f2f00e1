#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

namespace office::package {

/// What formulas may lead to in a workbook of which one sheet is left.
class FormulaReach {
public:
    explicit FormulaReach(std::string_view sheet);

    /// A defined name or a table that is left too.
    void add(std::string_view name);
    void remove(std::string_view name);
    /// A defined name of the whole workbook, which a formula may call as a function.
    void addCallable(std::string_view name);
    /// The workbook has functions of its own, which go with its macros.
    void addMacros() { hasMacros_ = true; }

    /// Whether a formula needs anything that is gone: another sheet or workbook, a name, a table,
    /// or a function that finds its cells by a text.
    [[nodiscard]] bool leavesSheet(std::string_view formula) const;
    /// Whether it names the sheet.
    [[nodiscard]] bool namesSheet(std::string_view formula) const;

private:
    struct Finding {
        bool leaves = false;
        bool namesSheet = false;
    };
    class Reader;
    [[nodiscard]] Finding read(std::string_view formula) const;

    std::string sheet_;
    std::unordered_set<std::string> names_;
    std::unordered_set<std::string> callable_;
    bool hasMacros_ = false;
};

}  // namespace office::package
