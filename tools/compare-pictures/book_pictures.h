#pragma once

#include <functional>
#include <memory>
#include <string>

#include "office/libreoffice/desk.h"
#include "office/libreoffice/private_instance.h"

namespace compare {

/// One chart or range, drawn both ways.
struct Pair {
    std::string book;
    std::string name;
    /// PNG files' bytes.
    std::string suites;
    std::string ours;
    /// Why it goes the suite's way in an export; empty if the drawing room draws it.
    std::string reason;
};

/// Opens workbooks in a suite of its own.
class BookPictures {
public:
    BookPictures();

    /// All charts and named ranges of a workbook.
    void forEach(const std::string& book, const std::function<void(const Pair&)>& use);

private:
    std::unique_ptr<libreoffice::PrivateInstance> instance_;
    std::shared_ptr<libreoffice::Desk> desk_;
};

}  // namespace compare
