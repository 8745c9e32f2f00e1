#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "office/libreoffice/desk.h"

namespace libreoffice {

/// The presentations or text documents that the suite has open. `Entry` is what the application's
/// model knows them as, `Kind` what they are here.
template <class Application, class Entry, class Kind>
class SuiteDocuments : public Application {
public:
    explicit SuiteDocuments(DeskPtr desk) : desk_(std::move(desk)) {}

    std::vector<std::shared_ptr<Entry>> open() override {
        const auto documents = desk_->open<Kind>();
        return {documents.begin(), documents.end()};
    }
    std::shared_ptr<Entry> active() override { return desk_->active<Kind>(); }
    std::shared_ptr<Entry> load(const std::string& file, bool withWindow) override {
        const rtl::OUString url = fileUrl(file);
        auto document = desk_->alreadyOpen<Kind>(url);
        if (!document) document = desk_->loaded<Kind>(url, withWindow);
        document->markActive();
        return document;
    }

protected:
    [[nodiscard]] Desk& desk() const { return *desk_; }
    [[nodiscard]] std::shared_ptr<Kind> makeNew(const rtl::OUString& factory, bool withWindow) {
        auto document = desk_->loaded<Kind>(factory, withWindow);
        document->markActive();
        return document;
    }

private:
    DeskPtr desk_;
};

}  // namespace libreoffice
