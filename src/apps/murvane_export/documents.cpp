#include "apps/murvane_export/documents.h"

#include <fmt/format.h>

#include <functional>
#include <system_error>

#include "apps/murvane_export/errors.h"
#include "office/at_end.h"
#include "office/failure_patterns.h"
#include "office/files.h"

namespace unattended {

namespace {

namespace fs = std::filesystem;
using office::arg;
using office::Object;
using session::OfficeSession;

constexpr std::int32_t yes = -1;
constexpr std::int32_t no = 0;

Object applicationOf(office::Suite& suite, std::string_view className) {
    const Object running = suite.attach(className);
    return running ? running : suite.start(className);
}

/// With the links of the file system that it leads through: what is linked to a workbook goes on
/// following them. ".." behind one leads to where that points, as it does for the system.
/// `RunError` where nobody else could open the file.
std::string absolutePath(const fs::path& file) {
    std::error_code ignored;
    fs::path path;
    for (const fs::path& name : fs::absolute(file, ignored)) {
        if (name == "..") {
            if (fs::is_symlink(path, ignored)) path = fs::canonical(path, ignored);
            path = path.parent_path();
        } else if (name != ".") {
            path /= name;
        }
    }
    // There the names are a process's own, and the suite is another one.
    const fs::path place = path.relative_path();
    if (!place.empty() && (*place.begin() == "dev" || *place.begin() == "proc")) {
        std::error_code error;
        path = fs::canonical(path, error);
        if (error) {
            throw RunError(fmt::format("{} can't be opened: the file behind it has lost its name.",
                                       office::utf8Of(file)));
        }
    }
    return office::utf8Of(path);
}

[[noreturn]] void complainUnopened(const fs::path& file, const office::Failure& failure) {
    const std::string reason = failure.description();
    const bool namesFile = reason.find(office::utf8Of(file.filename())) != std::string::npos;
    throw RunError(namesFile
                       ? reason + "."
                       : fmt::format("{} can't be opened: {}.", office::utf8Of(file), reason));
}

/// What a member opens. `RunError` where it can't.
Object opened(const fs::path& file, const std::function<office::Value()>& open) {
    try {
        return open().toObject();
    } catch (const office::SuiteLost&) {
        throw;
    } catch (const office::Failure& failure) {
        complainUnopened(file, failure);
    }
}

bool isSameFile(const fs::path& left, const fs::path& right) {
    std::error_code ignored;
    return fs::equivalent(left, right, ignored);
}

Object activeObject(const Object& application, std::string_view member) {
    return office::orElse([&] { return application.get(member).toObject(); }, Object());
}

}  // namespace

OpenedDocuments::~OpenedDocuments() {
    // The suite that holds them goes next, and may have gone already.
    office::asFarAsPossible([this] {
        office::ContinueOnFailure scope;
        if (presentation_) scope.attempt([&] { presentation_.call("Close"); });
        if (document_) scope.attempt([&] { document_.call("Close", arg("SaveChanges", false)); });
        if (workbook_) scope.attempt([&] { workbook_.call("Close", arg("SaveChanges", false)); });
    });
}

void OpenedDocuments::openWorkbook(const fs::path& file) {
    session_.ExcelApp = applicationOf(session_.suite, "Excel.Application");
    workbook_ = opened(file, [&] {
        return session_.ExcelApp.get("Workbooks")
            .call("Open", arg("FileName", absolutePath(file)), arg("UpdateLinks", no));
    });
    session_.ActiveBook = workbook_;
    session_.ActiveSheetName = workbook_.get("ActiveSheet").get("Name").toText();
}

void OpenedDocuments::openPresentation(const fs::path& file) {
    session_.PowerPointApp = applicationOf(session_.suite, "PowerPoint.Application");
    presentation_ = opened(file, [&] {
        return session_.PowerPointApp.get("Presentations")
            .call("Open", arg("FileName", absolutePath(file)), arg("WithWindow", yes));
    });
    session_.SessionPresentation = presentation_;
}

void OpenedDocuments::newPresentation() {
    session_.PowerPointApp = applicationOf(session_.suite, "PowerPoint.Application");
    presentation_ =
        session_.PowerPointApp.get("Presentations").call("Add", arg("WithWindow", yes)).toObject();
    slidesAtFirst_ = presentation_.get("Slides").get("Count").toLong();
    session_.SessionPresentation = presentation_;
}

Object OpenedDocuments::wordDocuments() {
    session_.WordApp = applicationOf(session_.suite, "Word.Application");
    return session_.WordApp.get("Documents").toObject();
}

void OpenedDocuments::openDocument(const fs::path& file) {
    const Object documents = wordDocuments();
    document_ =
        opened(file, [&] { return documents.call("Open", arg("FileName", absolutePath(file))); });
    session_.SessionDocument = document_;
}

void OpenedDocuments::newDocument() {
    document_ = wordDocuments().call("Add").toObject();
    session_.SessionDocument = document_;
}

void OpenedDocuments::removeFirstSlides() {
    if (slidesAtFirst_ == 0) return;
    const Object slides = presentation_.get("Slides").toObject();
    for (; slidesAtFirst_ > 0; --slidesAtFirst_) slides.get("Item", 1).call("Delete");
}

void takeActiveDocuments(OfficeSession& session, const Options& options) {
    session.ExcelApp = session.suite.attach("Excel.Application");
    if (session.ExcelApp) session.ActiveBook = activeObject(session.ExcelApp, "ActiveWorkbook");
    if (!session.ActiveBook) {
        throw RunError(
            "No running suite has a workbook open. Open the workbook first, or leave --attach "
            "out.");
    }
    session.ActiveSheetName = session.ActiveBook.get("ActiveSheet").get("Name").toText();
    const std::string active = session.ActiveBook.get("FullName").toText();
    if (!options.book.empty() &&
        !isSameFile(office::pathOf(options.book), office::pathOf(active))) {
        throw RunError(
            fmt::format("The active workbook is {}, not {}. Bring that one to the front, "
                        "or leave its name out.",
                        active, options.book));
    }
    session.PowerPointApp = session.suite.attach("PowerPoint.Application");
    if (session.PowerPointApp)
        session.SessionPresentation = activeObject(session.PowerPointApp, "ActivePresentation");
    session.WordApp = session.suite.attach("Word.Application");
    if (session.WordApp) session.SessionDocument = activeObject(session.WordApp, "ActiveDocument");
}

}  // namespace unattended
