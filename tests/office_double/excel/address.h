#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace office_double {

inline constexpr int lastRow = 1048576;
inline constexpr int lastColumn = 16384;

/// A rectangle of cells, both ends included, counted from 1.
struct Area {
    int top = 1;
    int left = 1;
    int bottom = 1;
    int right = 1;

    [[nodiscard]] int rows() const { return bottom - top + 1; }
    [[nodiscard]] int columns() const { return right - left + 1; }
    [[nodiscard]] double cells() const { return 1.0 * rows() * columns(); }
    bool operator==(const Area&) const = default;
};

std::optional<Area> intersection(const Area& first, const Area& second);

/// "A1", "$A$1:$B$2", "A:C", "1:5".
std::optional<Area> areaOf(std::string_view address);
/// "R1C2", "R1C1:R5C3", "C1:C8", "R2".
std::optional<Area> areaOfR1C1(std::string_view address);

/// "$A$1:$B$2"; whole columns as "$A:$B", whole rows as "$1:$5".
std::string addressOf(const Area& area);
std::string addressR1C1Of(const Area& area);

/// 28 of "AB"; 0 if this is no column.
int columnNumber(std::string_view letters);

/// An area with the sheet and, for one in another workbook, the workbook that a formula names.
struct Reference {
    std::string book;
    std::string sheet;
    Area area;
};

enum class Notation { A1, R1C1 };

/// The ranges that a name's formula refers to: "=Sales!$A$1,'My data'!$C$1:$C$5". Empty if it is
/// anything else.
std::vector<Reference> referencesOf(std::string_view formula, Notation notation = Notation::A1);
std::string formulaOf(const std::vector<Reference>& references, Notation notation = Notation::A1);

/// The sheet name as a formula writes it: quoted unless it is a plain word.
std::string quotedIfNeeded(std::string_view sheet);

}  // namespace office_double
