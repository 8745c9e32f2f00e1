#include "office/libreoffice/excel/formulas.h"

#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/AddressConvention.hpp>
#include <com/sun/star/sheet/XFormulaParser.hpp>
#include <com/sun/star/table/CellAddress.hpp>

#include "office/failure.h"
#include "office/libreoffice/excel/name_contents.h"

namespace libreoffice::excel {

namespace {

/// Formulas between the notations, by the suite's own parser.
class Translator {
public:
    explicit Translator(CalcDocument& book)
        : parser_(as<css::sheet::XFormulaParser>(
              as<css::lang::XMultiServiceFactory>(book.model())
                  ->createInstance("com.sun.star.sheet.FormulaParser"))) {
        setProperty(parser_, "CompileEnglish", true);
    }

    [[nodiscard]] std::string translate(const std::string& formula, sal_Int16 from, sal_Int16 to,
                                        const css::table::CellAddress& at = {}) const {
        setProperty(parser_, "FormulaConvention", from);
        const auto tokens = parser_->parseFormula(toUno(formula), at);
        setProperty(parser_, "FormulaConvention", to);
        return fromUno(parser_->printFormula(tokens, at));
    }

private:
    uno::Reference<css::sheet::XFormulaParser> parser_;
};

/// The convention of files: unlike that of Excel's own window it joins areas and arguments by
/// commas.
constexpr sal_Int16 fileConvention = css::sheet::AddressConvention::XL_OOX;

sal_Int16 conventionOf(Notation notation) {
    return notation == Notation::A1 ? fileConvention : css::sheet::AddressConvention::XL_R1C1;
}

}  // namespace

std::string formulaOfContents(CalcDocument& book, const std::string& contents, Notation notation) {
    if (isBrokenReference(contents)) return "=#REF!";
    const Translator translator(book);
    return "=" + translator.translate(contents, css::sheet::AddressConvention::OOO,
                                      conventionOf(notation));
}

std::string contentsOfFormula(CalcDocument& book, const std::string& formula, Notation notation) {
    const std::string body = formula.starts_with('=') ? formula.substr(1) : formula;
    const Translator translator(book);
    std::string contents =
        translator.translate(body, conventionOf(notation), css::sheet::AddressConvention::OOO);
    if (!contents.empty()) return contents;
    throw office::Failure(office::FailureNumber::ApplicationDefined, "Names.Add",
                          "This is no formula: " + formula);
}

std::string formulaOfCell(CalcDocument& book, const std::string& formula,
                          const css::table::CellAddress& cell) {
    // Most formulas are the same in both: only sheets, areas and arguments are written otherwise.
    if (!formula.starts_with('=') || formula.find_first_of(".;~!") == std::string::npos)
        return formula;
    const Translator translator(book);
    return "=" + translator.translate(formula.substr(1), css::sheet::AddressConvention::OOO,
                                      fileConvention, cell);
}

}  // namespace libreoffice::excel
