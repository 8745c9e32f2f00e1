#include "office/libreoffice/objects/png_graphic.h"

#include <com/sun/star/graphic/XGraphicProvider.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>

#include "office/libreoffice/uno_values.h"

namespace libreoffice {

uno::Reference<css::graphic::XGraphic> graphicOfPng(const Connection& connection,
                                                    const std::string& png) {
    const uno::Any bytes(
        uno::Sequence<sal_Int8>(reinterpret_cast<const sal_Int8*>(png.data()),  // NOLINT: as UNO's
                                static_cast<sal_Int32>(png.size())));
    const auto stream =
        connection.context()->getServiceManager()->createInstanceWithArgumentsAndContext(
            "com.sun.star.io.SequenceInputStream", {&bytes, 1}, connection.context());
    return as<css::graphic::XGraphicProvider>(
               connection.create("com.sun.star.graphic.GraphicProvider"))
        ->queryGraphic(
            propertyValues({{"InputStream", uno::Any(stream)}, {"LazyRead", uno::Any(true)}}));
}

}  // namespace libreoffice
