#include <fmt/format.h>

#include <filesystem>

#include "office/model/excel/objects.h"
#include "office/text.h"

namespace office::model::excel {

namespace {

/// A chart that only holds a picture. Excel's way from a range to a picture file leads over one;
/// here it lives beside the workbook, which stays as it is.
class PictureHolder : public SheetChart {
public:
    PictureHolder(BooksPtr books, const Box& box) : books_(std::move(books)), box_(box) {}

    [[nodiscard]] bool isGone() const override { return removed_; }
    [[nodiscard]] bool isOnSheet() const override { return false; }
    std::string name() override { return "Picture"; }
    Box box() override { return box_; }
    CopiedPtr copy(CopySource) override { return picture_; }
    void writePicture(const std::string& path, PictureKind kind) override {
        books_->writePicture(picture_, box_, path, kind);
    }
    void paste(const CopiedPtr& picture) override { picture_ = picture; }
    void select() override {}
    void remove() override { removed_ = true; }

private:
    BooksPtr books_;
    Box box_;
    CopiedPtr picture_;
    bool removed_ = false;
};

struct InChart : InSheet {
    SheetChartPtr chart;

    [[nodiscard]] bool isGone() const { return InSheet::isGone() || chart->isGone(); }
};

/// Base of the objects of one chart of a worksheet.
template <class Self>
class ObjectOfChart : public ObjectIn<Self, InChart> {
public:
    ObjectOfChart(InSheet home, SheetChartPtr chart)
        : ObjectIn<Self, InChart>({std::move(home), std::move(chart)}) {}

    [[nodiscard]] SheetChart& chart() const { return *this->home().chart; }

    /// Selects it, on top of its sheet.
    void select(const CallArguments& arguments) {
        if (chart().isOnSheet()) activateSheet(this->home(), arguments.source());
        chart().select();
    }
    void copy() { copyChart(this->home(), CopySource::Kind::Chart, this->home().chart); }
    void copyPicture() { copyChart(this->home(), CopySource::Kind::Picture, this->home().chart); }
};

/// A chart on a worksheet: the frame around it, with a name and a place.
class ChartObject : public ObjectOfChart<ChartObject> {
public:
    using ObjectOfChart::ObjectOfChart;

    static const MemberTable<ChartObject>& members() {
        using Self = ChartObject;
        static const auto table =
            MemberTable<Self>("ChartObject")
                .property("Name", [](Self& self) { return self.chart().name(); })
                .property("Chart",
                          [](Self& self) { return chartObject(self.home(), self.home().chart); })
                .property("TopLeftCell", [](Self& self) { return self.cellUnder(Corner::TopLeft); })
                .property("BottomRightCell",
                          [](Self& self) { return self.cellUnder(Corner::BottomRight); })
                .method("Activate", {}, &Self::select)
                .method("Select", {"Replace"}, &Self::select)
                .method("Copy", {}, &Self::copy)
                .method("CopyPicture", {"Appearance", "Format"}, &Self::copyPicture)
                .method("Delete", {}, [](Self& self, const CallArguments& arguments) {
                    if (self.chart().isOnSheet()) requireThere(self.home(), arguments.source());
                    self.chart().remove();
                });
        return table;
    }

private:
    enum class Corner { TopLeft, BottomRight };

    [[nodiscard]] Object cellUnder(Corner corner) const {
        const CellBlock cells = cellsUnderChart();
        return rangeObject(
            home(), {corner == Corner::TopLeft ? CellBlock::cell(cells.firstRow, cells.firstColumn)
                                               : CellBlock::cell(cells.lastRow, cells.lastColumn)});
    }
    [[nodiscard]] CellBlock cellsUnderChart() const {
        // What is published by its cells asks for them just before.
        Publications& publications = book().publications();
        if (!publications.records.empty()) {
            const PlacedCharts& placed = publications.placedCharts(home().sheet);
            if (const auto* known = placed.of(chart())) return cellsUnder(known->box, *placed.map);
        }
        return cellsUnder(chart().box(), *sheet().cellMap());
    }
};

/// The chart in a chart object.
class Chart : public ObjectOfChart<Chart> {
public:
    using ObjectOfChart::ObjectOfChart;

    static const MemberTable<Chart>& members() {
        using Self = Chart;
        static const auto table =
            MemberTable<Self>("Chart")
                .property(
                    "Parent",
                    [](Self& self) { return chartObjectObject(self.home(), self.home().chart); })
                .property(
                    "ChartArea",
                    [](Self& self) { return chartAreaObject(self.home(), self.home().chart); })
                .method("Export", {"Filename", "FilterName", "Interactive"},
                        [](Self& self, const CallArguments& arguments) {
                            exportPicture(self.chart(), arguments);
                        })
                .method("CopyPicture", {"Appearance", "Format", "Size"}, &Self::copyPicture)
                .method("Paste", {"Type"},
                        [](Self& self, const CallArguments& arguments) {
                            const CopiedPtr copied = self.books().clipboard().copied;
                            if (!copied) refuse(arguments.source(), "No picture has been copied");
                            self.chart().paste(copied);
                        })
                .method("Select", {"Replace"}, &Self::select)
                .method("Activate", {}, &Self::select);
        return table;
    }
};

/// The whole area of a chart, of a chart sheet for no chart: what it does, it has the chart do.
class ChartArea : public ObjectIn<ChartArea, InSheet> {
public:
    ChartArea(InSheet home, SheetChartPtr chart)
        : ObjectIn(std::move(home)),
          chart_(std::move(chart)) {}

    static const MemberTable<ChartArea>& members() {
        static const auto table =
            MemberTable<ChartArea>("ChartArea").method("Copy", {}, &ChartArea::copy);
        return table;
    }

private:
    void copy() { copyChart(home(), CopySource::Kind::Chart, chart_); }

    SheetChartPtr chart_;
};

/// The charts of a worksheet, numbered as they were when they were last counted by this object: a
/// loop over them asks the suite once. `Add` makes one that holds a picture: it is not counted
/// here.
class ChartObjects : public ObjectIn<ChartObjects, InSheet> {
public:
    using ObjectIn::ObjectIn;

    static const MemberTable<ChartObjects>& members() {
        using Self = ChartObjects;
        static const auto table =
            MemberTable<Self>("ChartObjects")
                .property("Count", &Self::count)
                .property("Item", {"Index"}, &Self::item)
                .method("Add", {"Left", "Top", "Width", "Height"},
                        [](Self& self, const CallArguments& at) {
                            const Box box{at.at(0).toDouble(), at.at(1).toDouble(),
                                          at.at(2).toDouble(), at.at(3).toDouble()};
                            return chartObjectObject(self.home(), std::make_shared<PictureHolder>(
                                                                      self.home().books, box));
                        });
        return table;
    }

private:
    Value count() {
        counted_ = sheet().charts();
        return countOf(counted_.size());
    }
    Value item(const CallArguments& arguments) {
        const ItemIndex index(arguments.at(0), arguments.source());
        if (index.isName() || counted_.empty()) return chartObjectByIndex(home(), arguments);
        return chartObjectObject(home(), counted_[index.placeBelow(counted_.size())]);
    }

    std::vector<SheetChartPtr> counted_;
};

}  // namespace

Object chartObjectByIndex(const InSheet& home, const CallArguments& arguments) {
    const ItemIndex index(arguments.at(0), arguments.source());
    SheetChartPtr chart;
    if (index.isName()) {
        chart = home.sheet->findChart(index.name());
        if (!chart) index.fail();
    } else {
        const auto charts = home.sheet->charts();
        chart = charts[index.placeBelow(charts.size())];
    }
    return chartObjectObject(home, chart);
}

Object chartObjectsObject(const InSheet& home) {
    return makeObject<ChartObjects>(home);
}

Object chartObjectObject(const InSheet& home, const SheetChartPtr& chart) {
    return makeObject<ChartObject>(home, chart);
}

Object chartObject(const InSheet& home, const SheetChartPtr& chart) {
    return makeObject<Chart>(home, chart);
}

Object chartAreaObject(const InSheet& home, const SheetChartPtr& chart) {
    return makeObject<ChartArea>(home, chart);
}

void copyChart(const InSheet& home, CopySource::Kind kind, const SheetChartPtr& chart) {
    CopySource source = sourceOf(home, kind);
    if (chart) source.chart = chart->name();
    const SheetChartPtr copied = chart ? chart : home.sheet->ownChart();
    home.books->clipboard().copied = copied->copy(std::move(source));
}

CopySource sourceOf(const InSheet& home, CopySource::Kind kind) {
    const std::string file = home.book->fullName();
    // A workbook that was never saved has a name and no path. No title can be taken for a path.
    const bool isFile = std::filesystem::path(file).is_absolute() || file != home.book->name();
    return {.kind = kind,
            .file = isFile ? file : std::string(),
            .sheet = home.sheet->name(),
            .chart = {},
            .address = {}};
}

void exportPicture(SheetChart& chart, const CallArguments& arguments) {
    const std::string path = arguments.at(0).toText();
    const std::string filter = arguments.at(1, "").toText();
    auto kind = pictureKindCalled(filter);
    if (!kind && !filter.empty())
        refuseCall(
            arguments.source(),
            fmt::format("A chart can't be exported as \"{}\", only as PNG, SVG or EMF", filter));
    if (!kind) kind = pictureKindCalled(path.substr(path.rfind('.') + 1));
    chart.writePicture(path, kind.value_or(PictureKind::Png));
}

}  // namespace office::model::excel
