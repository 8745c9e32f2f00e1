#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "office/package/zip_bytes.h"

/// A workbook with three sheets: "Data" with a chart on it, the hidden "Other 'x'", and "Plot",
/// which is a chart. The first two are selected.
namespace small_workbook {

inline std::string contentTypes(
    const std::string& kind = "openxmlformats-officedocument.spreadsheetml.sheet") {
    const auto override = [](const std::string& part, const std::string& type) {
        return "<Override PartName=\"" + part + "\" ContentType=\"application/vnd." + type +
               "+xml\"/>";
    };
    const std::string sheet = "openxmlformats-officedocument.spreadsheetml.";
    return zip_bytes::contentTypes(
        override("/xl/workbook.xml", kind + ".main") +
        override("/xl/sheet1.xml", sheet + "worksheet") +
        override("/xl/sheet2.xml", sheet + "worksheet") +
        override("/xl/sheet3.xml", sheet + "chartsheet") +
        override("/xl/drawing1.xml", "openxmlformats-officedocument.drawing"));
}

inline std::string relationshipsTo(const std::vector<zip_bytes::Item>& targets) {
    std::string all;
    for (std::size_t i = 0; i < targets.size(); ++i)
        all += "<Relationship Id=\"rId" + std::to_string(i + 1) +
               "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/" +
               targets[i].name + "\" Target=\"" + targets[i].bytes + "\"/>";
    return zip_bytes::relationships(all);
}

inline std::string sheet(const std::string& content, const std::string& root = "worksheet") {
    return "<" + root +
           " xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\" "
           "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\">" +
           content + "</" + root + ">";
}

/// `changes` take the place of parts of the same name or are added.
inline std::string bytes(const std::vector<zip_bytes::Item>& changes = {}) {
    const std::string selected =
        "<sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews>";
    std::vector<zip_bytes::Item> items = {
        {"[Content_Types].xml", contentTypes()},
        {"_rels/.rels", relationshipsTo({{"officeDocument", "xl/workbook.xml"}})},
        {"xl/_rels/workbook.xml.rels", relationshipsTo({{"worksheet", "sheet1.xml"},
                                                        {"worksheet", "sheet2.xml"},
                                                        {"chartsheet", "sheet3.xml"}})},
        {"xl/workbook.xml",
         sheet("<workbookPr/><sheets><sheet name=\"Data\" sheetId=\"1\" r:id=\"rId1\"/>"
               "<sheet name=\"Other 'x'\" sheetId=\"2\" state=\"hidden\" r:id=\"rId2\"/>"
               "<sheet name=\"Plot\" sheetId=\"3\" r:id=\"rId3\"/></sheets><calcPr/>",
               "workbook")},
        {"xl/sheet1.xml",
         sheet("<dimension ref=\"A1:D20\"/>" + selected + "<sheetData/><drawing r:id=\"rId1\"/>")},
        {"xl/_rels/sheet1.xml.rels", relationshipsTo({{"drawing", "drawing1.xml"}})},
        {"xl/sheet2.xml", sheet("<dimension ref=\"A1:C3\"/>" + selected + "<sheetData/>")},
        {"xl/sheet3.xml",
         sheet("<sheetViews><sheetView workbookViewId=\"0\"/></sheetViews>", "chartsheet")},
        {"xl/drawing1.xml",
         "<xdr:wsDr "
         "xmlns:xdr=\"http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing\" "
         "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><xdr:twoCellAnchor>"
         "<xdr:from><xdr:col>5</xdr:col><xdr:row>1</xdr:row></xdr:from>"
         "<xdr:to><xdr:col>12</xdr:col><xdr:row>15</xdr:row></xdr:to><xdr:graphicFrame>"
         "<xdr:nvGraphicFramePr><xdr:cNvPr id=\"2\" name=\"Sales\"/></xdr:nvGraphicFramePr>"
         "<a:graphic><a:graphicData "
         "uri=\"http://schemas.openxmlformats.org/drawingml/2006/chart\"><c:chart r:id=\"rId1\" "
         "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
         "xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\"/></a:graphicData>"
         "</a:graphic></xdr:graphicFrame></xdr:twoCellAnchor></xdr:wsDr>"},
    };
    for (const zip_bytes::Item& change : changes) {
        const auto known = std::find_if(items.begin(), items.end(),
                                        [&](const auto& one) { return one.name == change.name; });
        if (known == items.end())
            items.push_back(change);
        else
            known->bytes = change.bytes;
    }
    return zip_bytes::zipOf(items);
}

}  // namespace small_workbook
