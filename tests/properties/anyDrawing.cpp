// SPDX-License-Identifier: MIT
#include "anyDrawing.h"

#include "CKvDrawingBuilder.h"

#include <ostream>

namespace
{

const std::vector<std::string> kVersions = { "AC1009", "AC1014", "AC1015",
                                             "AC1018", "AC1021", "AC1032" };
const std::vector<std::string> kNames = { "0",        "WALLS",   "walls",   "Wände",
                                          "DOORS",    "дороги",  "雨水",    "Defpoints",
                                          "X|FRAMES", "*HIDDEN", " BLANK ", "A-1" };
const std::vector<std::string> kLineStyles = { "Continuous", "DASHED", "dashed", "MISSING" };
const std::vector<std::string> kTypes = { "LINE", "TEXT", "POINT" };

rc::Gen<CKvAnyDrawing::Layer> anyLayer()
{
    using Layer = CKvAnyDrawing::Layer;
    return rc::gen::build<Layer>(
        rc::gen::set(&Layer::name, rc::gen::elementOf(kNames)),
        rc::gen::set(&Layer::color, rc::gen::inRange(1, 256)),
        rc::gen::set(&Layer::lineWeight, rc::gen::elementOf(std::vector<int> { -3, 0, 25, 211 })),
        rc::gen::set(&Layer::lineStyle, rc::gen::elementOf(kLineStyles)));
}

rc::Gen<CKvAnyDrawing::Entity> anyEntity()
{
    using Entity = CKvAnyDrawing::Entity;
    return rc::gen::build<Entity>(
        rc::gen::set(&Entity::type, rc::gen::elementOf(kTypes)),
        rc::gen::set(&Entity::layer, rc::gen::elementOf(kNames)),
        rc::gen::set(&Entity::lineStyle, rc::gen::elementOf(kLineStyles)));
}

CKvDxfValue text(const std::string &utf8)
{
    return CKvDxfValue(utf8.c_str());
}

} // namespace

QByteArray CKvAnyDrawing::toBytes() const
{
    CKvDrawingBuilder builder(text(version));
    builder.withReservedLineStyles().lineStyle("DASHED").dashes({ 1, -1 });
    builder.textStyle("Standard");
    builder.currentLayer(text(currentLayer));
    for (const Layer &layer : layers) {
        builder.layer(text(layer.name))
            .color(layer.color)
            .lineStyle(text(layer.lineStyle))
            .lineWeight(layer.lineWeight);
    }
    for (const Entity &entity : entities) {
        builder.modelSpace()
            .entity(text(entity.type))
            .layer(text(entity.layer))
            .lineStyle(text(entity.lineStyle));
    }
    QByteArray bytes = builder.toBytes();
    return hasCarriageReturns ? bytes.replace("\n", "\r\n") : bytes;
}

std::ostream &operator<<(std::ostream &out, const CKvAnyDrawing &drawing)
{
    out << drawing.version << (drawing.hasCarriageReturns ? " CRLF" : "") << " current "
        << drawing.currentLayer << '\n';
    for (const CKvAnyDrawing::Layer &layer : drawing.layers) {
        out << "  layer '" << layer.name << "' " << layer.color << ' ' << layer.lineStyle << ' '
            << layer.lineWeight << '\n';
    }
    for (const CKvAnyDrawing::Entity &entity : drawing.entities) {
        out << "  " << entity.type << " on '" << entity.layer << "' " << entity.lineStyle << '\n';
    }
    return out;
}

QByteArray standardsOfAnyDrawing()
{
    CKvDrawingBuilder builder("AC1032");
    builder.withReservedLineStyles().lineStyle("DASHED").dashes({ 1, -1 });
    builder.layer("0");
    builder.layer("WALLS").color(1).lineWeight(25).lineStyle("DASHED");
    builder.layer("Дороги").color(3);
    builder.layer("NEU").color(200).lineWeight(50);
    return builder.toBytes();
}

rc::Gen<CKvAnyDrawing> rc::Arbitrary<CKvAnyDrawing>::arbitrary()
{
    return rc::gen::build<CKvAnyDrawing>(
        rc::gen::set(&CKvAnyDrawing::version, rc::gen::elementOf(kVersions)),
        rc::gen::set(&CKvAnyDrawing::hasCarriageReturns, rc::gen::arbitrary<bool>()),
        rc::gen::set(&CKvAnyDrawing::layers,
                     rc::gen::container<std::vector<CKvAnyDrawing::Layer>>(anyLayer())),
        rc::gen::set(&CKvAnyDrawing::entities,
                     rc::gen::container<std::vector<CKvAnyDrawing::Entity>>(anyEntity())),
        rc::gen::set(&CKvAnyDrawing::currentLayer, rc::gen::elementOf(kNames)));
}
