#pragma once

#include <memory>
#include <string>
#include <vector>

#include "office/drawing/drawing_room.h"
#include "office/libreoffice/connection.h"
#include "office/libreoffice/document.h"
#include "office/libreoffice/window_order.h"
#include "office/model/excel/books.h"
#include "office/model/guard.h"
#include "office/value.h"

namespace libreoffice {

namespace excel {
class PictureMaker;
class TextWidths;
}  // namespace excel

/// What all objects of one suite share: the connection, the documents that have been met, and what
/// automation keeps for an application and LibreOffice does not (calculation mode, window state,
/// what was copied last). A `Kind` is `CalcDocument`, `ImpressDeck` or `WriterDocument`.
class Desk {
public:
    /// `hidden`: documents are opened without a window, as in a private suite that nobody looks at.
    Desk(std::shared_ptr<Connection> connection, bool hidden, office::ClipboardPtr clipboard,
         std::shared_ptr<office::drawing::DrawingRoom> room);

    [[nodiscard]] Connection& connection() const { return *connection_; }
    [[nodiscard]] const std::shared_ptr<Connection>& connectionPtr() const { return connection_; }
    /// What the members of model objects run through.
    [[nodiscard]] const office::model::GuardPtr& guard() const { return guard_; }
    [[nodiscard]] bool opensHidden() const { return hidden_; }
    [[nodiscard]] office::Clipboard& clipboard() const { return *clipboard_; }

    /// The record of an open document, made when it is met for the first time. It stays the same
    /// for the document's life, since it holds what automation remembers about it.
    template <class Kind>
    std::shared_ptr<Kind> record(const uno::Reference<css::frame::XModel>& model);
    /// All open documents of the kind in the order of the suite, those without a window too.
    template <class Kind>
    std::vector<std::shared_ptr<Kind>> open();
    /// The one the user is in; if that is of another kind, the one of this kind that was active
    /// last, or else the first. Null with none open.
    template <class Kind>
    std::shared_ptr<Kind> active();

    /// Opens a file, or makes a new document from a factory URL. `office::Failure` 1004 with the
    /// reason if the suite gives no document: no such file, not of a kind it reads, locked by
    /// another instance, wrong password.
    ///
    /// A private suite's document can be changed also where its file may not be written or asks to
    /// be opened for reading: it is never saved over the file.
    uno::Reference<css::frame::XModel> load(const rtl::OUString& url, bool hidden,
                                            const std::string& password = {},
                                            bool readOnly = false);

    /// The open document of a file; null if there is none. `office::Failure` 1004 if it is open as
    /// another kind.
    template <class Kind>
    std::shared_ptr<Kind> alreadyOpen(const rtl::OUString& url);
    /// As `load`; `office::Failure` 1004 also for a document of another kind, which is closed
    /// again.
    template <class Kind>
    std::shared_ptr<Kind> loaded(const rtl::OUString& url, bool withWindow,
                                 const std::string& password = {});

    /// Where pictures are drawn.
    const std::shared_ptr<office::drawing::DrawingRoom> drawingRoom;
    /// Makes pictures; null until the first one is asked for.
    std::shared_ptr<excel::PictureMaker> pictureMaker;
    /// Measures texts; null until the first one is measured.
    std::shared_ptr<excel::TextWidths> textWidths;

    /// Whether nobody else, be it a user or a program, reaches what is open in the suite.
    bool isUndisturbed = false;

    /// Nothing in the suite answers to these.
    office::model::excel::Settings excelSettings;

private:
    uno::Reference<css::frame::XModel> loadOnce(const rtl::OUString& url, bool hidden,
                                                const std::string& password, bool readOnly,
                                                bool isApart);
    bool makeChangeable(const uno::Reference<css::frame::XModel>& model, const rtl::OUString& file);
    /// Null for a document that has not been met.
    std::shared_ptr<Document> known(const uno::Reference<css::frame::XModel>& model);
    void noteOrderOfWindows();

    std::shared_ptr<Connection> connection_;
    office::model::GuardPtr guard_;
    bool hidden_;
    office::ClipboardPtr clipboard_;
    std::vector<std::shared_ptr<Document>> documents_;
    WindowOrder windowsBefore_;
};

using DeskPtr = std::shared_ptr<Desk>;

}  // namespace libreoffice
