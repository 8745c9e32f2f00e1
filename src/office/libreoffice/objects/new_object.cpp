#include "office/libreoffice/objects/new_object.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/document/XStorageBasedDocument.hpp>
#include <com/sun/star/embed/ElementModes.hpp>
#include <com/sun/star/embed/XTransactedObject.hpp>
#include <com/sun/star/io/XOutputStream.hpp>
#include <com/sun/star/io/XStream.hpp>
#include <com/sun/star/lang/XComponent.hpp>

#include <algorithm>

#include "office/libreoffice/at_end.h"

namespace libreoffice::objects {

namespace {

constexpr sal_Int32 anew = css::embed::ElementModes::WRITE | css::embed::ElementModes::TRUNCATE;
constexpr const char* namePrefix = "Pasted ";

/// Of another kind than LibreOffice's own names ("Object 1"): links have such a name and nothing in
/// the storage that would tell, and a shape of the same name would show what is linked.
rtl::OUString freeName(const uno::Reference<css::embed::XStorage>& storage) {
    const auto prefix = rtl::OUString::createFromAscii(namePrefix);
    sal_Int32 highest = 0;
    const auto names = storage->getElementNames();
    for (const rtl::OUString& name : names) {
        if (name.startsWith(prefix))
            highest = std::max(highest, name.copy(prefix.getLength()).toInt32());
    }
    return prefix + rtl::OUString::number(highest + 1);
}

}  // namespace

std::set<rtl::OUString> objectsStoredIn(const uno::Reference<css::frame::XModel>& document) {
    // LibreOffice calls its own "Object 1", and those that have come with a .pptx "Obj100".
    const rtl::OUString prefixes[] = {"Object ", "Obj1",
                                      rtl::OUString::createFromAscii(namePrefix)};
    std::set<rtl::OUString> stored;
    const auto names =
        as<css::document::XStorageBasedDocument>(document)->getDocumentStorage()->getElementNames();
    for (const rtl::OUString& name : names) {
        if (std::any_of(std::begin(prefixes), std::end(prefixes),
                        [&](const auto& prefix) { return name.startsWith(prefix); }))
            stored.insert(name);
    }
    return stored;
}

void writeXml(const uno::Reference<css::embed::XStorage>& folder, const char* file,
              std::string_view xml) {
    const auto stream = folder->openStreamElement(rtl::OUString::createFromAscii(file), anew);
    setProperty(stream, "MediaType", rtl::OUString("text/xml"));
    const auto bytes = stream->getOutputStream();
    bytes->writeBytes({reinterpret_cast<const sal_Int8*>(xml.data()),  // NOLINT: bytes as UNO's
                       static_cast<sal_Int32>(xml.size())});
    bytes->closeOutput();
    as<css::lang::XComponent>(stream)->dispose();
}

NewObject::NewObject(const uno::Reference<css::frame::XModel>& document)
    : all_(as<css::document::XStorageBasedDocument>(document)->getDocumentStorage()),
      name_(freeName(all_)),
      folder_(all_->openStorageElement(name_, anew)) {}

NewObject::~NewObject() {
    if (isComplete_) return;
    asFarAsPossible([&] {
        close();
        all_->removeElement(name_);
    });
}

void NewObject::setMediaType(const char* mediaType) {
    setProperty(folder_, "MediaType", rtl::OUString::createFromAscii(mediaType));
}

void NewObject::close() {
    if (!folder_.is()) return;
    as<css::embed::XTransactedObject>(folder_)->commit();
    as<css::lang::XComponent>(folder_)->dispose();
    folder_.clear();
}

}  // namespace libreoffice::objects
