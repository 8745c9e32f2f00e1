#include "destinations/pdf_run.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "catalogue/row_copies.h"
#include "destinations/word_numbers.h"
#include "office/at_end.h"
#include "office/failure_patterns.h"
#include "office/text.h"
#include "session/waits.h"

namespace destinations {

namespace {

using catalogue::ExportItem;
using office::arg;
using office::Object;
using session::OfficeSession;

/// Word, and one document of it that nobody else has seen. The document goes with this object, and
/// so does a Word that was started for it, unless the user has opened documents of their own there.
class TemporaryDocument {
public:
    // By way of the other constructor, so that a Word is not left behind if it makes no document.
    explicit TemporaryDocument(OfficeSession& session)
        : TemporaryDocument(session.suite.attach("Word.Application"), session) {
        document_ = word_.get("Documents").call("Add", arg("Visible", false)).toObject();
    }
    TemporaryDocument(const TemporaryDocument&) = delete;
    TemporaryDocument& operator=(const TemporaryDocument&) = delete;
    /// A lost application has closed everything itself.
    ~TemporaryDocument() {
        office::asFarAsPossible([this] {
            office::ContinueOnFailure scope;
            if (document_)
                scope.attempt([&] { document_.call("Close", arg("SaveChanges", false)); });
            if (!createdWord_) return;
            const std::int32_t own = scope.failed() ? 1 : 0;
            scope.attempt([&] {
                if (word_.get("Documents").get("Count").toLong() == own)
                    word_.call("Quit", arg("SaveChanges", false));
            });
        });
    }

    [[nodiscard]] const Object& document() const { return document_; }

private:
    TemporaryDocument(Object running, OfficeSession& session) : word_(std::move(running)) {
        if (word_) return;
        createdWord_ = office::ContinueOnFailure().attempt(
            [&] { word_ = session.suite.start("Word.Application"); });
        if (!createdWord_) office::refuse("Word.Application", "Microsoft Word is not available.");
    }

    Object word_;
    Object document_;
    bool createdWord_ = false;
};

/// The lines of a caption as those of one heading, which is one bookmark.
std::string headingOf(const std::string& caption) {
    std::string heading;
    for (const std::string& line : office::linesOf(caption))
        heading += (heading.empty() ? "" : "\v") + line;
    return heading;
}

/// Lays the pages out: a heading, the item below it, the source line at the foot.
class PdfPages {
public:
    PdfPages(OfficeSession& session, const PdfOptions& options, const Object& document);

    void addCover();
    void addItem(const ExportItem& row);

private:
    [[nodiscard]] double headingHeight(const std::string& caption) const;
    /// How a paragraph begins, and what is kept free around it.
    struct ParagraphLook {
        std::int32_t style;
        bool beginsPage = false;
        bool isCentred = false;
        double spaceBeforePt = 0;
        double spaceAfterPt = 0;
    };
    void beginParagraph();
    void pasteBelow(const std::string& heading);
    void beginParagraph(const ParagraphLook& look);
    void dressParagraph(const ParagraphLook& look);

    OfficeSession& session_;
    const PdfOptions& options_;
    Object document_;
    Object selection_;
    double width_ = 0;
    double height_ = 0;
    std::string workbook_;
    bool isFirstPage_ = true;
    bool isFirstParagraph_ = true;
};

constexpr double sourceLinePt = 24;

PdfPages::PdfPages(OfficeSession& session, const PdfOptions& options, const Object& document)
    : session_(session),
      options_(options),
      document_(document),
      selection_(document.get("ActiveWindow").get("Selection").toObject()),
      workbook_(session.ActiveBook.get("FullName").toText()) {
    constexpr std::int32_t landscape = 1;
    constexpr double marginPt = 36;
    const Object page = selection_.get("PageSetup").toObject();
    page.put("Orientation", landscape);
    for (const char* margin : {"LeftMargin", "RightMargin", "TopMargin", "BottomMargin"})
        page.put(margin, marginPt);
    width_ = page.get("PageWidth").toDouble() - 2 * marginPt;
    height_ = page.get("PageHeight").toDouble() - 2 * marginPt;
    document_.get("BuiltInDocumentProperties", "Title")
        .put("Value", session.ActiveBook.get("Name").toText());
}

void PdfPages::beginParagraph() {
    if (!isFirstParagraph_) selection_.call("TypeParagraph");
    isFirstParagraph_ = false;
}

void PdfPages::beginParagraph(const ParagraphLook& look) {
    beginParagraph();
    dressParagraph(look);
}

void PdfPages::dressParagraph(const ParagraphLook& look) {
    constexpr std::int32_t centre = 1;
    // Each step would be laid out for itself.
    const Object format = selection_.get("ParagraphFormat").get("Duplicate").toObject();
    format.put("Style", look.style);
    // A paragraph takes the break and the spaces of the one before along.
    format.put("PageBreakBefore", look.beginsPage);
    if (look.isCentred) format.put("Alignment", centre);
    format.put("SpaceBefore", look.spaceBeforePt);
    format.put("SpaceAfter", look.spaceAfterPt);
    selection_.put("ParagraphFormat", format);
}

void PdfPages::addCover() {
    constexpr double share = 0.3;
    bool isFirst = true;
    for (const std::string& line : office::linesOf(options_.coverText)) {
        beginParagraph({.style = isFirst ? number::title : number::normal,
                        .isCentred = true,
                        .spaceBeforePt = isFirst ? height_ * share : 12});
        selection_.call("TypeText", line);
        isFirst = false;
    }
    isFirstPage_ = false;
}

/// The most that any Word gives its headings: measured in the fonts of this machine, they may be
/// others there.
double PdfPages::headingHeight(const std::string& caption) const {
    constexpr double fontPt = 20;
    constexpr double spacePt = 18;
    return session_.host.textSize(caption, {"Arial", fontPt}, width_).height + spacePt;
}

/// Heading and paragraph go again if nothing comes below: they would take a page of their own.
void PdfPages::pasteBelow(const std::string& heading) {
    const bool isFirst = isFirstParagraph_;
    std::size_t typed = isFirst ? 0 : 1;
    if (!heading.empty()) {
        beginParagraph({.style = number::heading1, .beginsPage = !isFirstPage_, .spaceAfterPt = 6});
        selection_.call("TypeText", heading);
        typed += office::charactersOf(heading).size() + 1;
    }
    beginParagraph();
    try {
        selection_.call("Paste");
    } catch (const office::Failure&) {
        isFirstParagraph_ = isFirst;
        office::ContinueOnFailure().attempt([&] {
            for (; typed > 0; --typed) selection_.call("TypeBackspace");
        });
        throw;
    }
}

void PdfPages::addItem(const ExportItem& row) {
    /// What lines take beside their letters, and what rounding takes.
    constexpr double slackPt = 12;
    constexpr double wholePercent = 100;
    constexpr std::uint32_t arrivedMs = 250;

    catalogue::CopyRowAsPicture(session_, row);
    session::SleepMilliseconds(session_, arrivedMs);
    double room = height_ - slackPt - (options_.includePath ? sourceLinePt : 0);
    const std::string heading = options_.pageTitles ? headingOf(row.caption) : std::string();
    const bool hasHeading = !heading.empty();
    if (hasHeading) room -= headingHeight(row.caption);
    pasteBelow(heading);
    const Object shapes = document_.get("InlineShapes").toObject();
    const Object shape = shapes.get("Item", shapes.get("Count").toLong()).toObject();
    const double width = shape.get("Width").toDouble();
    const double height = shape.get("Height").toDouble();
    const double scale =
        std::min(width_ / width, room / height) * options_.sizeFactor / wholePercent;
    shape.put("Width", width * scale);
    shape.put("Height", height * scale);
    shape.put("AlternativeText", catalogue::DescriptionOf(row));
    // In the middle of its room.
    const double gap = std::max(0.0, (room - height * scale) / 2);
    dressParagraph({.style = number::normal,
                    .beginsPage = !hasHeading && !isFirstPage_,
                    .isCentred = true,
                    .spaceBeforePt = gap});
    if (options_.includePath) {
        beginParagraph({.style = number::normal, .spaceBeforePt = gap});
        selection_.call("TypeText", fmt::format("{}  -  {}", workbook_, row.sheet));
    }
    isFirstPage_ = false;
}

}  // namespace

PdfResult ExportRowsToPdf(RowBatch& batch, const PdfOptions& options, const std::string& path) {
    constexpr std::int32_t headings = 1;
    OfficeSession& session = batch.session;
    const TemporaryDocument temporary(session);
    PdfPages pages(session, options, temporary.document());
    if (options.coverPage) pages.addCover();
    PdfResult result;
    result.walk = walkRows(batch, [&](const catalogue::TakenRow&, const ExportItem& row) {
        pages.addItem(row);
        result.isMade = true;
    });
    if (result.isMade)
        temporary.document().call("ExportAsFixedFormat", path, number::pdf, false,
                                  arg("IncludeDocProps", true), arg("CreateBookmarks", headings),
                                  arg("DocStructureTags", true));
    return result;
}

}  // namespace destinations
