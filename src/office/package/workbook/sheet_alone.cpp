#include "office/package/workbook/sheet_alone.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "office/package/part_name.h"
#include "office/package/workbook/chart_values.h"
#include "office/package/workbook/sheet_markup.h"
#include "office/package/workbook/sheet_notes.h"
#include "office/package/workbook/source_chart.h"
#include "office/text.h"

namespace office::package {

namespace {

/// What a kept part may lead to, by the last words of the relationships' types.
const std::set<std::string_view> keptRelationships = {
    "theme",       "styles",          "sharedStrings",     "drawing",         "chart",
    "chartEx",     "chartUserShapes", "chartStyle",        "chartColorStyle", "themeOverride",
    "image",       "table",           "comments",          "vmlDrawing",      "hyperlink",
    "diagramData", "diagramLayout",   "diagramQuickStyle", "diagramColors",   "diagramDrawing"};

/// Of these those that no attribute of their part names.
const std::set<std::string_view> impliedRelationships = {
    "comments", "chartStyle", "chartColorStyle", "themeOverride", "diagramDrawing"};

constexpr std::string_view keptInWorkbook =
    "fileVersion workbookPr bookViews sheets definedNames calcPr";

std::string_view kindOf(const Relationship& relationship) {
    const std::string_view type = relationship.type;
    return type.substr(type.rfind('/') + 1);
}

/// Takes the elements out that need relationships which have gone.
void dropDependent(const Xml& xml, const std::set<std::string>& gone) {
    const auto dependent = elementsBelow(xml.root(), [](pugi::xml_node node) {
        const auto attributes = node.attributes();
        return std::any_of(attributes.begin(), attributes.end(), [](const auto& attribute) {
            return std::string_view(attribute.name()).find(':') != std::string_view::npos;
        });
    });
    std::for_each(dependent.rbegin(), dependent.rend(), [&](pugi::xml_node node) {
        for (const char* name : {"id", "embed", "link", "pict", "dm", "lo", "qs", "cs"}) {
            const auto id = attributeNamed(node, ns::relationships, name);
            if (!id || !gone.contains(id.value())) continue;
            // The settings of a printer are only a part of what stands there.
            if (localName(node) == "pageSetup")
                node.remove_attribute(id);
            else
                node.parent().remove_child(node);
            break;
        }
    });
    // The effects of a picture need the layer that they are laid upon.
    const auto bare = elementsBelow(xml.root(), [](pugi::xml_node node) {
        return isNamed(node, ns::drawing, "ext") &&
               std::any_of(node.begin(), node.end(), [](pugi::xml_node child) {
                   return isNamed(child, ns::drawing2010, "imgProps") && !firstElement(child);
               });
    });
    // Inner ones first: they would go with an outer one.
    std::for_each(bare.rbegin(), bare.rend(),
                  [](pugi::xml_node extension) { extension.parent().remove_child(extension); });
}

class SheetAlone {
public:
    SheetAlone(Package& workbook, std::string main, const WorkbookSheet& sheet)
        : workbook_(workbook),
          main_(std::move(main)),
          sheet_(sheet),
          reach_(sheet.name) {}

    void keep() {
        const Xml xml(workbook_.read(main_), main_);
        knowTables();
        knowConversations();
        const auto& all = workbook_.relationshipsOf(main_).all();
        if (std::any_of(all.begin(), all.end(),
                        [](const Relationship& one) { return kindOf(one) == "vbaProject"; }))
            reach_.addMacros();
        reduceWorkbook(xml.root());
        workbook_.replace(main_, xml.bytes());
        dropRelationships("/", [](const Relationship& one) {
            return kindOf(one) == "officeDocument" || kindOf(one) == "extended-properties";
        });
        keepMaker();
        dropRelationships(main_, [&](const Relationship& one) { return isOfWorkbook(one); });
        keepFrom(main_);
        dropOthers();
    }

private:
    bool isOfWorkbook(const Relationship& one) {
        const std::string_view kind = kindOf(one);
        if (one.isExternal) return false;
        if (kind == "sharedStrings") return sheet_.kind == WorkbookSheet::Kind::Worksheet;
        return kind == "theme" || kind == "styles" ||
               partKey(workbook_.relationshipsOf(main_).partOf(one)) == partKey(sheet_.part);
    }

    /// Of what the file says about itself, which program wrote it stays: what charts leave out
    /// means one thing or the other by its version.
    void keepMaker() {
        const std::string part = workbook_.partOfType("/", "extended-properties");
        if (part.empty()) return;
        const Xml xml(workbook_.read(part), part);
        keepChildren(xml.root(), [](pugi::xml_node child) {
            return localName(child) == "Application" || localName(child) == "AppVersion";
        });
        workbook_.replace(part, xml.bytes());
        dropRelationships(part, [](const Relationship&) { return false; });
        kept_.insert(partKey(part));
    }

    /// Those that the sheet itself leads to.
    std::vector<std::string> partsOfSheet(std::string_view kind) {
        const Relationships& relationships = workbook_.relationshipsOf(sheet_.part);
        std::vector<std::string> parts;
        for (const Relationship& one : relationships.all()) {
            if (one.isExternal || kindOf(one) != kind) continue;
            if (std::string part = relationships.partOf(one); workbook_.has(part))
                parts.push_back(std::move(part));
        }
        return parts;
    }

    void knowTables() {
        for (const std::string& part : partsOfSheet("table")) {
            const Xml table(workbook_.read(part), part);
            reach_.add(table.root().attribute("displayName").value());
        }
    }

    void knowConversations() {
        for (const std::string& part : partsOfSheet("comments")) {
            const Xml notes(workbook_.read(part), part);
            conversations_ = conversationsIn(notes);
            hasNotes_ = dropConversations(notes);
            workbook_.replace(part, notes.bytes());
        }
    }

    /// Those names stay that are about the sheet and need nothing else.
    void reduceNames(pugi::xml_node list, const std::string& place) {
        for (const pugi::xml_node name : list.children())
            reach_.addCallable(name.attribute("name").value());
        keepChildren(list, [&](pugi::xml_node name) {
            const std::string_view owner = name.attribute("localSheetId").value();
            return (owner.empty() || owner == place) && reach_.namesSheet(name.text().get());
        });
        for (const pugi::xml_node name : list.children())
            reach_.add(name.attribute("name").value());
        // A name may need one that goes. After a long way from name to name all are taken to.
        constexpr int mostRounds = 50;
        bool isDone = false;
        for (int round = 0; !isDone; ++round) {
            isDone = true;
            keepChildren(list, [&](pugi::xml_node name) {
                if (round < mostRounds && !reach_.leavesSheet(name.text().get())) return true;
                reach_.remove(name.attribute("name").value());
                isDone = false;
                return false;
            });
        }
        for (const pugi::xml_node name : list.children()) {
            if (auto owner = name.attribute("localSheetId")) owner.set_value("0");
        }
        if (list && !list.first_child()) list.parent().remove_child(list);
    }

    void reduceWorkbook(pugi::xml_node root) {
        keepChildren(root, [](pugi::xml_node child) {
            return isListed(keptInWorkbook, localName(child)) &&
                   isNamed(child, ns::spreadsheet, localName(child));
        });
        auto sheets = childNamed(root, ns::spreadsheet, "sheets");
        const auto all = childrenNamed(sheets, ns::spreadsheet, "sheet");
        const auto own = std::find_if(all.begin(), all.end(), [&](const auto& entry) {
            return entry.attribute("name").value() == sheet_.name;
        });
        reduceNames(childNamed(root, ns::spreadsheet, "definedNames"),
                    std::to_string(own - all.begin()));
        keepChildren(sheets,
                     [&](pugi::xml_node entry) { return own != all.end() && entry == *own; });
        childNamed(root, ns::spreadsheet, "workbookPr").remove_attribute("codeName");
    }

    /// The ids of those that went.
    template <typename Test>
    std::set<std::string> dropRelationships(const std::string& part, Test isKept) {
        Relationships& relationships = workbook_.relationshipsOf(part);
        std::set<std::string> gone;
        for (const Relationship& one : relationships.all()) {
            const bool isExternalLink = one.isExternal && kindOf(one) == "hyperlink";
            const bool isPart = !one.isExternal && kindOf(one) != "hyperlink" &&
                                workbook_.has(relationships.partOf(one));
            if (!(isExternalLink || isPart) || !isKept(one)) gone.insert(one.id);
        }
        relationships.removeAll(gone);
        return gone;
    }

    bool mayStay(const std::string& part, const Relationship& one) {
        const std::string_view kind = kindOf(one);
        if (!keptRelationships.contains(kind)) return false;
        const auto target = [&] {
            return workbook_.read(workbook_.relationshipsOf(part).partOf(one));
        };
        if (kind == "comments") return hasNotes_;
        if (kind == "vmlDrawing") return hasNotes_ && holdsNotesAlone(target());
        if (kind != "chartEx") return true;
        // Charts of the later kinds know no values without cells.
        const Xml chart(target(), part);
        const auto leaving = elementsBelow(chart.root(), [&](pugi::xml_node node) {
            return localName(node) == "f" && reach_.leavesSheet(node.text().get());
        });
        return leaving.empty();
    }

    /// Keeps a part and all that it leads to, reduced to what the sheet needs.
    void keepFrom(const std::string& first) {
        std::vector<std::pair<std::string, std::string>> ahead = {{first, "workbook"}};
        while (!ahead.empty()) {
            const auto [part, kind] = std::move(ahead.back());
            ahead.pop_back();
            if (!kept_.insert(partKey(part)).second) continue;
            if (kind != "workbook")
                reduce(part, kind, dropRelationships(part, [&, &source = part](const auto& one) {
                           return mayStay(source, one);
                       }));
            const Relationships& relationships = workbook_.relationshipsOf(part);
            for (const Relationship& one : relationships.all()) {
                if (!one.isExternal) ahead.emplace_back(relationships.partOf(one), kindOf(one));
            }
        }
    }

    void reduce(const std::string& part, std::string_view kind, const std::set<std::string>& gone) {
        if (kind == "vmlDrawing" && !conversations_.empty())
            workbook_.replace(part, withoutBoxesOf(conversations_, workbook_.read(part)));
        const bool isSheet = kind == "worksheet" || kind == "chartsheet";
        const bool isDrawing = kind == "drawing" || kind == "chartUserShapes";
        if (!isSheet && !isDrawing && kind != "chart" && kind != "table") return;
        const Xml xml(workbook_.read(part), part);
        dropDependent(xml, gone);
        if (isSheet) {
            reduceSheet(xml, reach_);
            reduceShared(xml);
        } else if (isDrawing) {
            reduceDrawing(xml, reach_);
        } else if (kind == "table") {
            reduceTable(xml, reach_);
        } else {
            keepChartValues(xml, reach_);
        }
        workbook_.replace(part, xml.bytes());
        // What only the markup that went has named goes with it.
        std::set<std::string_view> named;
        for (const pugi::xml_attribute id : relationshipIdsIn(xml)) named.insert(id.value());
        dropRelationships(part, [&](const Relationship& one) {
            return named.contains(one.id) || impliedRelationships.contains(kindOf(one));
        });
    }

    /// What all sheets have in common.
    void reduceShared(const Xml& sheet) {
        const Relationships& relationships = workbook_.relationshipsOf(main_);
        for (const Relationship& one : relationships.all()) {
            const std::string_view kind = kindOf(one);
            if (kind != "sharedStrings" && kind != "styles") continue;
            const std::string part = relationships.partOf(one);
            const Xml xml(workbook_.read(part), part);
            if (kind == "styles")
                reduceFormats(xml, sheet);
            else
                reduceStrings(xml, sheet);
            workbook_.replace(part, xml.bytes());
        }
    }

    void dropOthers() {
        std::set<std::string> left = {partKey(relationshipsPartOf("/"))};
        for (const std::string& part : kept_) {
            left.insert(part);
            left.insert(partKey(relationshipsPartOf(part)));
        }
        for (const std::string& part : workbook_.parts()) {
            // Relationships go with their part, if that is there.
            if (!left.contains(partKey(part)) && workbook_.has(part)) workbook_.remove(part);
        }
    }

    Package& workbook_;
    std::string main_;
    const WorkbookSheet& sheet_;
    FormulaReach reach_;
    NotedCells conversations_;
    bool hasNotes_ = false;
    std::set<std::string> kept_;
};

}  // namespace

void keepSheetAlone(Package& workbook, const std::string& main, const WorkbookSheet& sheet) {
    SheetAlone(workbook, main, sheet).keep();
}

}  // namespace office::package
