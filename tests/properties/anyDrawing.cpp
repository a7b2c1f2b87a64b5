// SPDX-License-Identifier: MIT
#include "anyDrawing.h"

#include "CKvDrawingBuilder.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace
{

const std::vector<std::string> kVersions = { "AC1009", "AC1014", "AC1015",
                                             "AC1018", "AC1021", "AC1032" };
const std::vector<std::string> kNames = { "0",        "WALLS",   "walls",   "Wände",
                                          "DOORS",    "дороги",  "雨水",    "Defpoints",
                                          "X|FRAMES", "*HIDDEN", " BLANK ", "A-1" };
const std::vector<std::string> kLineStyles = { "Continuous", "DASHED", "dashed", "MISSING" };
const std::vector<std::string> kTypes = { "LINE", "TEXT", "POINT", "DIMENSION" };
const std::vector<std::string> kOwnLineStyles = { "CENTER", "center", "LINIE-ö", "X|DOT" };
const std::vector<std::string> kTextStyles = {
    "Standard", "NOTES", "notes", "HAND", "Überschrift"
};
const std::vector<std::string> kDimStyles = { "Standard", "A-100", "a-100", "OLD", "Maß" };

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
    return rc::gen::build<Entity>(rc::gen::set(&Entity::type, rc::gen::elementOf(kTypes)),
                                  rc::gen::set(&Entity::layer, rc::gen::elementOf(kNames)),
                                  rc::gen::set(&Entity::lineStyle, rc::gen::elementOf(kLineStyles)),
                                  rc::gen::set(&Entity::textStyle, rc::gen::elementOf(kTextStyles)),
                                  rc::gen::set(&Entity::dimStyle, rc::gen::elementOf(kDimStyles)));
}

rc::Gen<std::vector<CKvAnyDrawing::Style>> anyStyles(const std::vector<std::string> &names)
{
    using Style = CKvAnyDrawing::Style;
    return rc::gen::container<std::vector<Style>>(
        rc::gen::build<Style>(rc::gen::set(&Style::name, rc::gen::elementOf(names)),
                              rc::gen::set(&Style::size, rc::gen::inRange(1, 4)),
                              rc::gen::set(&Style::textStyle, rc::gen::elementOf(kTextStyles))));
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
    builder.currentLayer(text(currentLayer));
    for (const Style &style : lineStyles) {
        builder.lineStyle(text(style.name)).dashes({ double(style.size), -1 });
    }
    for (const Style &style : textStyles) {
        builder.textStyle(text(style.name)).height(style.size);
    }
    for (const Style &style : dimStyles) {
        CKvDimStyleBuilder &dimStyle = builder.dimStyle(text(style.name));
        dimStyle.group(140, style.size);
        const bool isThere =
            std::any_of(textStyles.begin(), textStyles.end(), [&](const Style &known) {
                return known.name == style.textStyle;
            });
        if (version != "AC1009" && isThere) {
            dimStyle.group(340, text(style.textStyle));
        }
    }
    for (const Layer &layer : layers) {
        builder.layer(text(layer.name))
            .color(layer.color)
            .lineStyle(text(layer.lineStyle))
            .lineWeight(layer.lineWeight);
    }
    for (const Entity &entity : entities) {
        CKvEntityBuilder &added = builder.modelSpace()
                                      .entity(text(entity.type))
                                      .layer(text(entity.layer))
                                      .lineStyle(text(entity.lineStyle));
        if (entity.type == "TEXT") {
            added.textStyle(text(entity.textStyle));
        } else if (entity.type == "DIMENSION") {
            added.dimStyle(text(entity.dimStyle));
        }
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
    const std::pair<const char *, const std::vector<CKvAnyDrawing::Style> &> styles[] = {
        { "line style", drawing.lineStyles },
        { "text style", drawing.textStyles },
        { "dimension style", drawing.dimStyles }
    };
    for (const auto &[kind, all] : styles) {
        for (const CKvAnyDrawing::Style &style : all) {
            out << "  " << kind << " '" << style.name << "' " << style.size << " '"
                << style.textStyle << "'\n";
        }
    }
    for (const CKvAnyDrawing::Entity &entity : drawing.entities) {
        out << "  " << entity.type << " on '" << entity.layer << "' " << entity.lineStyle << " '"
            << entity.textStyle << "' '" << entity.dimStyle << "'\n";
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
    builder.lineStyle("CENTER").dashes({ 2, -1, 1, -1 });
    builder.textStyle("Standard");
    builder.textStyle("NOTES").height(2).font("isocp.shx");
    builder.textStyle("ÜBERSCHRIFT").height(5);
    builder.dimStyle("Standard").group(140, 2);
    builder.dimStyle("A-100").group(140, 3).group(41, 2).group(340, "NOTES");
    return builder.toBytes();
}

rc::Gen<CKvAnyDrawing> rc::Arbitrary<CKvAnyDrawing>::arbitrary()
{
    return rc::gen::build<CKvAnyDrawing>(
        rc::gen::set(&CKvAnyDrawing::version, rc::gen::elementOf(kVersions)),
        rc::gen::set(&CKvAnyDrawing::hasCarriageReturns, rc::gen::arbitrary<bool>()),
        rc::gen::set(&CKvAnyDrawing::layers,
                     rc::gen::container<std::vector<CKvAnyDrawing::Layer>>(anyLayer())),
        rc::gen::set(&CKvAnyDrawing::lineStyles, anyStyles(kOwnLineStyles)),
        rc::gen::set(&CKvAnyDrawing::textStyles, anyStyles(kTextStyles)),
        rc::gen::set(&CKvAnyDrawing::dimStyles, anyStyles(kDimStyles)),
        rc::gen::set(&CKvAnyDrawing::entities,
                     rc::gen::container<std::vector<CKvAnyDrawing::Entity>>(anyEntity())),
        rc::gen::set(&CKvAnyDrawing::currentLayer, rc::gen::elementOf(kNames)));
}
