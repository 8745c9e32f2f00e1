#include "office/package/workbook/chart_values.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "office/package/package.h"

namespace office::package {

namespace {

/// In the prefix of another element.
std::string named(pugi::xml_node like, std::string_view name) {
    const std::string_view other = like.name();
    return std::string(other.substr(0, other.find(':') + 1)) + std::string(name);
}

pugi::xml_node childOf(pugi::xml_node parent, std::string_view name) {
    return childNamed(parent, ns::chart, name);
}

/// The remembered points of all levels, the outer one first, as one text each. `PackageError` where
/// repeating the outer ones would make much of little.
std::map<unsigned, std::string> joinedPoints(pugi::xml_node levels) {
    constexpr std::size_t mostBytes = 16 << 20;
    std::size_t bytes = 0;
    std::map<unsigned, std::string> texts;
    for (const pugi::xml_node level : childrenNamed(levels, ns::chart, "lvl")) {
        std::map<unsigned, std::string> own;
        for (const pugi::xml_node point : childrenNamed(level, ns::chart, "pt"))
            own[point.attribute("idx").as_uint()] = childOf(point, "v").text().get();
        if (texts.empty()) {
            texts = own;
            continue;
        }
        // Of an outer level each point holds until the next one.
        for (auto& [index, text] : texts) {
            const auto next = own.upper_bound(index);
            if (next == own.begin()) continue;
            const std::string& outer = std::prev(next)->second;
            bytes += text.size() + outer.size();
            if (bytes > mostBytes)
                throw PackageError(Fault::TooLarge, "the categories of a chart are too long");
            text.insert(0, fmt::format("{} ", outer));
        }
    }
    return texts;
}

/// Takes a reference's place with literal points.
void putPoints(pugi::xml_node reference, pugi::xml_node cache, const char* name) {
    pugi::xml_node holder = reference.parent();
    auto literal = holder.insert_child_before(named(reference, name).c_str(), reference);
    if (localName(cache) != "multiLvlStrCache") {
        copyInto(cache, literal);
    } else {
        const auto texts = joinedPoints(cache);
        literal.append_copy(childOf(cache, "ptCount"));
        for (const auto& [index, text] : texts) {
            auto point = literal.append_child(named(reference, "pt").c_str());
            point.append_attribute("idx").set_value(index);
            point.append_child(named(reference, "v").c_str()).text().set(text.c_str());
        }
    }
    holder.remove_child(reference);
}

/// A name of a series becomes its text; a title gets it as its own.
void putText(pugi::xml_node reference, pugi::xml_node cache) {
    const std::string text = childOf(childOf(cache, "pt"), "v").text().get();
    pugi::xml_node holder = reference.parent();
    if (isNamed(holder.parent(), ns::chart, "ser")) {
        holder.insert_child_before(named(reference, "v").c_str(), reference)
            .text()
            .set(text.c_str());
    } else {
        auto rich = holder.insert_child_before(named(reference, "rich").c_str(), reference);
        insertMarkup(rich, "<a:bodyPr/>");
        auto run = insertMarkup(rich, "<a:p><a:r><a:t/></a:r></a:p>").first_child().first_child();
        run.text().set(text.c_str());
    }
    holder.remove_child(reference);
}

pugi::xml_node cacheOf(pugi::xml_node reference) {
    const std::string_view kind = localName(reference);
    return childOf(reference, kind == "numRef"   ? "numCache"
                              : kind == "strRef" ? "strCache"
                                                 : "multiLvlStrCache");
}

/// Whether it remembers something; blank cells count as points.
bool hasPoints(pugi::xml_node cache) {
    return childOf(cache, "ptCount").attribute("val").as_uint() > 0 || childOf(cache, "pt") ||
           childOf(cache, "lvl");
}

/// A cache of no points is that of hidden cells where others have some: a program that stores no
/// values stores none at all.
void requireStored(pugi::xml_node cache, bool hasOthers) {
    if (hasPoints(cache) || (hasOthers && childOf(cache, "ptCount"))) return;
    throw PackageError(Fault::Damaged,
                       "a chart draws on another sheet, and its values are not stored: a "
                       "spreadsheet program that opens and saves it stores them");
}

void putValues(pugi::xml_node reference, bool hasOthers) {
    const pugi::xml_node cache = cacheOf(reference);
    requireStored(cache, hasOthers);
    if (localName(reference) == "numRef") {
        putPoints(reference, cache, "numLit");
    } else if (localName(reference) == "strRef" && localName(reference.parent()) == "tx") {
        putText(reference, cache);
    } else {
        putPoints(reference, cache, "strLit");
    }
}

/// Those of the standard and those that later versions have added.
bool isFormula(pugi::xml_node node) {
    return localName(node) == "f" || localName(node) == "sqref";
}

bool isReference(pugi::xml_node node) {
    const std::string_view name = localName(node);
    return (name == "numRef" || name == "strRef" || name == "multiLvlStrRef") &&
           isNamed(node, ns::chart, name);
}

/// Whether it holds series, or titles of those, that a filter of the chart hides.
bool hidesSeries(pugi::xml_node extension) {
    return localName(extension) == "ext" &&
           localName(firstElement(extension)).starts_with("filtered");
}

/// They are remembered with all their values, which nobody has seen.
void dropHiddenSeries(const Xml& chart, const FormulaReach& reach) {
    const auto hidden = elementsBelow(chart.root(), hidesSeries);
    std::for_each(hidden.rbegin(), hidden.rend(), [&](pugi::xml_node extension) {
        const auto leaving = elementsBelow(extension, [&](pugi::xml_node node) {
            return isFormula(node) && reach.leavesSheet(node.text().get());
        });
        if (!leaving.empty()) extension.parent().remove_child(extension);
    });
}

}  // namespace

void keepChartValues(const Xml& chart, const FormulaReach& reach) {
    dropHiddenSeries(chart, reach);
    std::set<pugi::xml_node> leaving;
    for (pugi::xml_node formula : elementsBelow(chart.root(), isFormula)) {
        if (!reach.leavesSheet(formula.text().get())) continue;
        // What was added later has no literals: it is left as if its cells had been deleted.
        if (isReference(formula.parent()))
            leaving.insert(formula.parent());
        else
            formula.text().set("#REF!");
    }
    // From the innermost, since what stands in another element goes with that.
    const auto references = elementsBelow(chart.root(), isReference);
    const bool hasAny = std::any_of(references.begin(), references.end(),
                                    [](const auto& one) { return hasPoints(cacheOf(one)); });
    std::for_each(references.rbegin(), references.rend(), [&](pugi::xml_node reference) {
        if (leaving.contains(reference)) putValues(reference, hasAny);
    });
    for (const char* gone : {"pivotSource", "externalData"}) {
        if (const auto found = childOf(chart.root(), gone)) chart.root().remove_child(found);
    }
}

}  // namespace office::package
