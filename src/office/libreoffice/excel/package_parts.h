#pragma once

#include <com/sun/star/container/XNameAccess.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "office/libreoffice/connection.h"

namespace libreoffice::excel {

/// A line of a part's ".rels": what it leads to.
struct Relationship {
    std::string id;
    std::string type;
    /// Full part name, "xl/worksheets/sheet1.xml".
    std::string target;
};

/// The parts of a workbook file, read as they are stored.
class PackageParts {
public:
    /// Nothing if the file is no package: of another format, encrypted, not there any more.
    static std::optional<PackageParts> open(const Connection& connection, const rtl::OUString& url);

    /// The bytes of a part; empty if there is none of that name.
    [[nodiscard]] std::string read(const std::string& part) const;
    [[nodiscard]] std::vector<Relationship> relationshipsOf(const std::string& part) const;
    /// The target of the first relationship whose type ends so; empty if there is none.
    [[nodiscard]] std::string related(const std::string& part, std::string_view typeEnd) const;

private:
    explicit PackageParts(uno::Reference<css::container::XNameAccess> parts);

    uno::Reference<css::container::XNameAccess> parts_;
};

}  // namespace libreoffice::excel
