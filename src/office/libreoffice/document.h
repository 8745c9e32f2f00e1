#pragma once

#include <com/sun/star/frame/XModel.hpp>

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/uno_values.h"

namespace libreoffice {

/// One open document of the suite, and whether it is still open.
///
/// Proxies of a closed document don't reliably throw (a name reads as '', a count as 0), so the
/// closing is heard by a listener and every object of the document asks here first.
class Document {
public:
    explicit Document(uno::Reference<css::frame::XModel> model);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    virtual ~Document();

    [[nodiscard]] const uno::Reference<css::frame::XModel>& model() const { return model_; }
    [[nodiscard]] bool isClosed() const { return *closed_; }
    /// `office::Failure` Disconnected if the document has been closed.
    void requireOpen(std::string_view member) const;

    /// The file's name with its extension; for a document never saved, the window title's own
    /// words.
    [[nodiscard]] std::string name() const;
    /// The path of the file; the name alone for a document never saved.
    [[nodiscard]] std::string fullName() const;
    /// The same for every program that is connected to the suite, as long as the document is open.
    [[nodiscard]] std::string identity() const;
    /// The file's address; empty for a document never saved.
    [[nodiscard]] rtl::OUString url() const { return file_.isEmpty() ? model_->getURL() : file_; }
    /// Names the file of a document that was loaded apart from it, or that keeps the one it has.
    void standFor(const rtl::OUString& file) { file_ = file; }
    [[nodiscard]] uno::Reference<css::frame::XController> controller() const {
        return model_->getCurrentController();
    }

    /// A kind of file that a document is written as.
    struct FileKind {
        /// ".docx"
        std::string_view ending;
        const char* filter;
    };
    /// Writes a copy; the document's own file and state stay. `office::Failure` 5 for an ending
    /// that none of the kinds has, 1004 with the reason if the file does not come about.
    void writeCopy(std::string_view member, const std::string& path,
                   const std::vector<FileKind>& kinds,
                   const uno::Sequence<css::beans::PropertyValue>& options = {}) const;
    /// Whether it was loaded through a filter that has this in its name.
    [[nodiscard]] bool cameThrough(const char* filter) const;
    /// Gives the document's window the foreground. False if it has none that is shown.
    bool raise() const;
    /// Closes without saving.
    void close();

    /// Notes that the document is the active one of its kind from now on.
    void markActive();
    /// Grows with each document that becomes active; 0 for one that never did.
    [[nodiscard]] std::uint64_t lastActive() const { return lastActive_; }

private:
    uno::Reference<css::frame::XModel> model_;
    rtl::OUString file_;
    std::shared_ptr<std::atomic<bool>> closed_;
    std::uint64_t lastActive_ = 0;
};

}  // namespace libreoffice
