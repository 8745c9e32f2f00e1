// What goes to pages: the records that Excel keeps of it, and what their publishing writes.

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

#include "office/failure_patterns.h"
#include "office/model/excel/cells_as_page.h"
#include "office/model/excel/objects.h"
#include "office/model/excel/published_page.h"

namespace office::model::excel {

namespace {

/// Puts what a record names on its page.
class Publisher {
public:
    Publisher(const InBook& home, Publication& what, std::string source)
        : home_(home),
          what_(what),
          source_(std::move(source)),
          page_(what.file, home.book->publications().lastPicture) {}

    void publish(bool create) {
        const SheetPtr sheet = home_.book->findSheet(what_.sheet);
        if (!sheet) refuse(source_, fmt::format("There is no sheet \"{}\"", what_.sheet));
        const InSheet place{home_, sheet};
        // The page stays as it is until what goes on it is there.
        const std::string markup =
            what_.source == Publication::Source::Chart ? chartMarkup(place) : cellsMarkup(place);
        if (create || !page_.exists())
            page_.begin(std::filesystem::path(home_.book->name()).stem().string());
        page_.append(markup);
    }

    /// Waits for the pictures of a record and writes them. Without them the page has gaps, so one
    /// that can't be written keeps none of the others away.
    static void end(Publication& what) {
        ContinueOnFailure scope;
        for (const auto& one : std::exchange(what.pictures, {}))
            scope.attempt([&] { writePagePicture(one.first, one.second.png.get()); });
        if (scope.failed()) throw Failure(*scope.lastFailure());
    }

private:
    /// Where something on a sheet comes from, as far as a page has use for it: its sheet has just
    /// been found by its name, and the workbook's file is not asked for.
    [[nodiscard]] static CopySource sourceOn(const InSheet& place, CopySource::Kind kind) {
        return {.kind = kind,
                .file = {},
                .sheet = place.sheet->knownName(),
                .chart = {},
                .address = {}};
    }

    [[nodiscard]] PagePicture pictureOf(const InSheet& place, SheetChart& chart, std::string name,
                                        const Box& at) {
        CopySource source = sourceOn(place, CopySource::Kind::Chart);
        if (!place.sheet->isChartSheet()) source.chart = name;
        const CopiedPtr copied = chart.copy(std::move(source));
        what_.pictures.emplace_back(page_.placeForPicture(), copied->picture(Sharpness::Crisp));
        return {page_.addressOf(what_.pictures.back().first),
                std::move(name),
                {at.left, at.top, copied->widthPt(), copied->heightPt()}};
    }

    [[nodiscard]] std::string chartMarkup(const InSheet& place) {
        const SheetChartPtr chart = place.sheet->isChartSheet()
                                        ? place.sheet->ownChart()
                                        : place.sheet->findChart(what_.place);
        if (!chart) refuse(source_, fmt::format("There is no chart \"{}\"", what_.place));
        PagePicture picture =
            pictureOf(place, *chart,
                      place.sheet->isChartSheet() ? place.sheet->knownName() : chart->name(), {});
        describe(picture);
        return pageItem(what_.divId, what_.title, picture.box.width, pictureAsPage(picture));
    }

    [[nodiscard]] std::string cellsMarkup(const InSheet& place) {
        auto& gaps = home_.book->publications().gaps;
        const std::pair asked(place.sheet, what_.place);
        if (const auto gap = gaps.find(asked); gap != gaps.end()) return itemOf(gap->second, {});
        const auto found = findCells(place, what_.place);
        if (!found) refuse(source_, fmt::format("There is no range \"{}\"", what_.place));
        if (found->blocks.size() > 1) refuse(source_, "Several areas can't be published");
        const auto block = drawnPart(found->blocks.front(), *found->home.sheet);
        if (!block) refuse(source_, "There is nothing in these rows or columns");
        const PlacedCharts& placed = home_.book->publications().placedCharts(found->home.sheet);
        TableLook look = lookOf(found->home, *block, placed);
        look.leaveTextsToBars();
        std::vector<PagePicture> charts = chartsOn(found->home, placed, *block, look);
        if (!showsCells(look)) {
            if (charts.empty()) gaps.emplace(asked, look);
            if (charts.size() == 1) describe(charts.front());
        }
        return itemOf(look, charts);
    }

    /// Of a picture that is all there is, the title tells more than its name does.
    void describe(PagePicture& picture) const {
        if (!what_.title.empty()) picture.name = what_.title;
    }

    [[nodiscard]] std::string itemOf(const TableLook& look,
                                     const std::vector<PagePicture>& charts) const {
        return pageItem(what_.divId, what_.title, look.widthPt(), cellsAsPage(look, charts));
    }

    [[nodiscard]] static TableLook lookOf(const InSheet& place, const CellBlock& block,
                                          const PlacedCharts& placed) {
        // Thinner ones are hidden, which a copy refuses.
        constexpr double thinnestPt = 0.1;
        if (placed.blankCells && intersection(block, *placed.blankCells) == block) {
            const Box at = placed.map->placeOf(block);
            if (at.width > thinnestPt && at.height > thinnestPt)
                return {{at.width}, {at.height}, {CellLook{}}, at.left, at.top};
        }
        CopySource from = sourceOn(place, CopySource::Kind::Cells);
        from.address = addressOf(block);
        return place.sheet->cells(block)->copy(from)->tableOfPage();
    }

    /// The charts that lie on the cells, or stick out of them. The cells under a chart stand for it
    /// alone: its neighbours stick into them on most sheets.
    [[nodiscard]] std::vector<PagePicture> chartsOn(const InSheet& place,
                                                    const PlacedCharts& placed,
                                                    const CellBlock& block, const TableLook& look) {
        constexpr double touchingPt = 0.5;
        std::vector<const PlacedCharts::One*> there;
        for (const PlacedCharts::One& one : placed.charts) {
            const Box& box = one.box;
            const bool lies = box.left + touchingPt < look.leftPt + look.widthPt() &&
                              box.left + box.width > look.leftPt + touchingPt &&
                              box.top + touchingPt < look.topPt + look.heightPt() &&
                              box.top + box.height > look.topPt + touchingPt;
            if (lies) there.push_back(&one);
        }
        std::vector<const PlacedCharts::One*> exactly;
        std::copy_if(there.begin(), there.end(), std::back_inserter(exactly),
                     [&](const auto* one) { return cellsUnder(one->box, *placed.map) == block; });
        if (!exactly.empty()) there = exactly;
        std::vector<PagePicture> pictures;
        pictures.reserve(there.size());
        for (const auto* one : there)
            pictures.push_back(pictureOf(place, *one->chart, one->name, one->box));
        return pictures;
    }

    const InBook& home_;
    Publication& what_;
    std::string source_;
    PublishedPage page_;
};

/// One record. Its pictures may still be drawn when its publishing has returned; they are there
/// once it has been told not to be published again. Publishing it by itself after each save is what
/// this Excel doesn't do.
class PublishObject : public ObjectIn<PublishObject> {
public:
    PublishObject(InBook home, PublicationPtr what)
        : ObjectIn(std::move(home)),
          what_(std::move(what)) {}

    static const MemberTable<PublishObject>& members() {
        using Self = PublishObject;
        static const auto table =
            MemberTable<Self>("PublishObject")
                .property(
                    "AutoRepublish", [](Self&) { return false; },
                    [](Self& self, const Value& wanted) {
                        if (wanted.toBool())
                            refuse("PublishObject.AutoRepublish",
                                   "Pages are not published again by themselves here");
                        Publisher::end(*self.what_);
                    })
                .method("Publish", {"Create"},
                        [](Self& self, const CallArguments& arguments) {
                            Publisher(self.home(), *self.what_, arguments.source())
                                .publish(arguments.at(0, false).toBool());
                        })
                .method("Delete", {},
                        [](Self& self) { self.book().publications().remove(self.what_); });
        return table;
    }

private:
    PublicationPtr what_;
};

/// The records of a workbook, which are not saved with it.
class PublishObjects : public ObjectIn<PublishObjects> {
public:
    using ObjectIn::ObjectIn;

    static const MemberTable<PublishObjects>& members() {
        using Self = PublishObjects;
        static const auto table =
            MemberTable<Self>("PublishObjects")
                .property(
                    "Count",
                    [](Self& self) { return countOf(self.book().publications().records.size()); })
                .method("Add",
                        {"SourceType", "Filename", "Sheet", "Source", "HtmlType", "DivID", "Title"},
                        &Self::add);
        return table;
    }

private:
    Object add(const CallArguments& arguments);
};

enum AddArgument : std::size_t { SourceType, Filename, OfSheet, Source, HtmlType, DivId, Title };

Object PublishObjects::add(const CallArguments& arguments) {
    const std::int32_t type = arguments.at(SourceType).toLong();
    const bool isChart = type == static_cast<std::int32_t>(Publication::Source::Chart);
    if (!isChart && type != static_cast<std::int32_t>(Publication::Source::Range))
        refuse(arguments.source(), "Only ranges and charts can be published");
    constexpr std::int32_t staticPage = 0;
    if (arguments.at(HtmlType, staticPage).toLong() != staticPage ||
        !arguments.at(DivId, "").toText().empty())
        refuse(arguments.source(), "Pages stay as they are, and their items are counted, here");
    auto what = std::make_shared<Publication>();
    what->source = isChart ? Publication::Source::Chart : Publication::Source::Range;
    what->file = arguments.at(Filename).toText();
    what->sheet = arguments.at(OfSheet, "").toText();
    what->place = arguments.at(Source, "").toText();
    what->divId = fmt::format("item{}", ++book().publications().made);
    what->title = arguments.at(Title, "").toText();
    book().publications().records.push_back(what);
    return makeObject<PublishObject>(home(), std::move(what));
}

}  // namespace

Object publishObjectsObject(const InBook& home) {
    return makeObject<PublishObjects>(home);
}

}  // namespace office::model::excel
