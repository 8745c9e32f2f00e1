#include "office/libreoffice/powerpoint/reflection_format.h"

#include "office/libreoffice/powerpoint/shape_effects.h"

namespace libreoffice::powerpoint {

namespace {

using office::CallArguments;
using office::Value;

/// What PowerPoint mirrors of a shape that got a reflection without a size.
constexpr double plainSize = 0.35;

}  // namespace

const office::MemberTable<ReflectionFormat>& ReflectionFormat::members() {
    // `unit` is the object model's number for one of the reflection's own.
    const auto read = [](double Reflection::*part, double unit) {
        return [part, unit](ReflectionFormat& self, const CallArguments&) -> Value {
            return reflectionOf(self.shape()).*part * unit;
        };
    };
    const auto write = [](double Reflection::*part, double unit) {
        return [part, unit](ReflectionFormat& self, const CallArguments&, const Value& value) {
            Reflection reflection = reflectionOf(self.shape());
            if (reflection.size == 0) reflection.size = plainSize;
            reflection.*part = value.toDouble() / unit;
            setReflection(self.shape(), reflection);
        };
    };
    constexpr double points = 1;
    constexpr double percent = 100;
    constexpr double share = 1;
    static const auto table =
        office::MemberTable<ReflectionFormat>("ReflectionFormat")
            .property("Offset", read(&Reflection::offsetPt, points),
                      write(&Reflection::offsetPt, points))
            .property("Blur", read(&Reflection::blurPt, points), write(&Reflection::blurPt, points))
            .property("Size", read(&Reflection::size, percent), write(&Reflection::size, percent))
            .property("Transparency", read(&Reflection::transparency, share),
                      write(&Reflection::transparency, share));
    return table;
}

}  // namespace libreoffice::powerpoint
