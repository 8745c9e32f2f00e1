#pragma once

#include <com/sun/star/embed/XStorage.hpp>
#include <com/sun/star/frame/XModel.hpp>

#include <set>
#include <string_view>

#include "office/libreoffice/uno_values.h"

namespace libreoffice::objects {

/// Writes a file of a storage.
void writeXml(const uno::Reference<css::embed::XStorage>& folder, const char* file,
              std::string_view xml);

/// The names of all objects that a document keeps, charts among them.
[[nodiscard]] std::set<rtl::OUString> objectsStoredIn(
    const uno::Reference<css::frame::XModel>& document);

/// A folder in a document's own storage that is being filled with a new embedded object. A
/// shape that is given its name shows the object. Unless it is completed, it is taken out again.
class NewObject {
public:
    explicit NewObject(const uno::Reference<css::frame::XModel>& document);
    NewObject(const NewObject&) = delete;
    NewObject& operator=(const NewObject&) = delete;
    ~NewObject();

    /// As the document knows it: a shape's "PersistName", a text object's "StreamName".
    [[nodiscard]] const rtl::OUString& name() const { return name_; }
    [[nodiscard]] const uno::Reference<css::embed::XStorage>& folder() const { return folder_; }
    /// Says what kind of document the folder holds.
    void setMediaType(const char* mediaType);
    void writeXml(const char* file, std::string_view xml) { objects::writeXml(folder_, file, xml); }
    /// Hands the folder over; it can't be written any more.
    void close();
    /// The object stays.
    void complete() { isComplete_ = true; }

private:
    uno::Reference<css::embed::XStorage> all_;
    rtl::OUString name_;
    uno::Reference<css::embed::XStorage> folder_;
    bool isComplete_ = false;
};

}  // namespace libreoffice::objects
