#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "office/files.h"
#include "office/model/guard.h"
#include "office/package/file_rules.h"
#include "office/package/package.h"

namespace office::package {

/// What is wrong with a package becomes a failure of the member that met it.
class PackageGuard : public office::model::Guard {
public:
    Value run(const office::model::MemberUse& use,
              const std::function<Value()>& statement) override {
        try {
            return statement();
        } catch (const PackageError& error) {
            refuse(fmt::format("{}.{}", use.className, use.member), error.what());
        }
    }
};

/// A presentation or document in a package: what both have, whatever is in them. `Self` has
/// `markGone`.
template <class Model, class Self>
class OpenFile : public Model, public std::enable_shared_from_this<Self> {
public:
    /// `path` is empty for one that has no file yet. `mainPart` finds the part that the package is
    /// about.
    OpenFile(Package package, std::string path, std::string name, FileRulesPtr rules,
             std::string (*mainPart)(Package&))
        : package_(std::move(package)),
          path_(std::move(path)),
          name_(std::move(name)),
          rules_(std::move(rules)),
          main_(mainPart(package_)) {}

    [[nodiscard]] Package& package() { return package_; }
    [[nodiscard]] const FileRules& rules() const { return *rules_; }
    /// What is called when it is closed.
    void onClosed(std::function<void(Self&)> closed) { closed_ = std::move(closed); }
    void onActivated(std::function<void(Self&)> activated) { activated_ = std::move(activated); }

    [[nodiscard]] bool isGone() const override { return isGone_; }
    std::string name() override { return name_; }
    std::string fullName() override { return path_.empty() ? name_ : path_; }
    CopiedPtr copied() override { return rules_->clipboard ? rules_->clipboard->copied : nullptr; }
    void activate() override { activated_(*this->shared_from_this()); }
    void close() override {
        // Whoever is called lets go of it.
        const auto self = this->shared_from_this();
        closed_(*self);
    }

protected:
    Package package_;
    std::string path_;
    std::string name_;
    FileRulesPtr rules_;
    std::string main_;
    /// Whether the main part is another than it was.
    bool isChanged_ = false;
    bool isGone_ = false;

private:
    std::function<void(Self&)> closed_;
    std::function<void(Self&)> activated_;
};

/// The presentations or documents that an application has open, as files or to become such.
/// `Entry` is what the application's model knows them as.
template <class Application, class Entry, class File>
class OpenFiles : public Application,
                  public std::enable_shared_from_this<OpenFiles<Application, Entry, File>> {
public:
    explicit OpenFiles(FileRulesPtr rules) : rules_(std::move(rules)) {}

    /// Opens what is in a package as the active one. `path` is empty for one that has no file yet.
    std::shared_ptr<File> add(Package package, const std::string& path, const std::string& name) {
        std::shared_ptr<File> file = make(std::move(package), path, name, rules_);
        file->onActivated([self = this->weak_from_this()](File& active) {
            if (const auto all = self.lock()) all->activate(active);
        });
        file->onClosed([self = this->weak_from_this()](File& closed) {
            closed.markGone();
            if (const auto all = self.lock())
                std::erase_if(all->files_, [&](const auto& held) { return held.get() == &closed; });
        });
        files_.push_back(file);
        return file;
    }

    std::vector<std::shared_ptr<Entry>> open() override { return {files_.begin(), files_.end()}; }
    /// The one that was used last stands last.
    std::shared_ptr<Entry> active() override { return files_.empty() ? nullptr : files_.back(); }
    std::shared_ptr<Entry> load(const std::string& file, bool /*withWindow*/) override {
        const auto known = std::find_if(files_.begin(), files_.end(),
                                        [&](const auto& one) { return one->fullName() == file; });
        if (known != files_.end()) {
            activate(**known);
            return files_.back();
        }
        const std::filesystem::path path = pathOf(file);
        return add(Package::open(path), file, utf8Of(path.filename()));
    }

protected:
    /// Opens a new one, which has the name of its kind and a number.
    std::shared_ptr<Entry> addNew(std::string_view content, std::string_view kind) {
        return add(Package::fromBytes(content), "", fmt::format("{}{}", kind, ++created_));
    }

private:
    /// The file of a package; another application may have one that can do more.
    virtual std::shared_ptr<File> make(Package package, const std::string& path,
                                       const std::string& name, const FileRulesPtr& rules) {
        return std::make_shared<File>(std::move(package), path, name, rules);
    }

    void activate(const File& wanted) {
        const auto found = std::find_if(files_.begin(), files_.end(),
                                        [&](const auto& held) { return held.get() == &wanted; });
        if (found != files_.end()) std::rotate(found, found + 1, files_.end());
    }

    FileRulesPtr rules_;
    std::vector<std::shared_ptr<File>> files_;
    int created_ = 0;
};

}  // namespace office::package
