// SPDX-License-Identifier: MIT
#include "readLineTypeFile.h"

#include "CKvDxfError.h"
#include "CKvFileImage.h"
#include "CKvTextCodec.h"

#include <QStringList>
#include <QtMath>

#include <cmath>

namespace
{

using Element = CKvLineTypeDefinition::Element;

// Which definition is read, for errors.
struct Place {
    QString path;
    qint64 line;

    [[noreturn]] void fail(const QString &reason) const { throw CKvDxfError(path, line, reason); }
};

QStringList linesOf(std::string_view bytes)
{
    const QString utf8 = CKvTextCodec().decode(bytes);
    const bool isUtf8 = !utf8.contains(QChar::ReplacementCharacter);
    QString text = isUtf8 ? utf8 : CKvTextCodec::forDrawing({}, "ANSI_1252").decode(bytes);
    if (text.startsWith(QChar(QChar::ByteOrderMark))) {
        text.remove(0, 1);
    }
    return text.split(QLatin1Char('\n'));
}

bool isComment(const QString &line)
{
    return line.startsWith(QLatin1Char(';'));
}

// @return false for a line that begins no line style.
bool readHeading(const QString &line, QString &name, QString &description)
{
    if (!line.startsWith(QLatin1Char('*'))) {
        return false;
    }
    const int comma = line.indexOf(QLatin1Char(','));
    name = line.mid(1, comma < 0 ? -1 : comma - 1).trimmed();
    description = comma < 0 ? QString() : line.mid(comma + 1).trimmed();
    return true;
}

// Splits at commas that stand neither in quotes nor in square brackets.
QStringList splitFields(const QString &text, const Place &place)
{
    QStringList fields(QString {});
    bool isQuoted = false;
    bool isBracketed = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character == QLatin1Char('"')) {
            isQuoted = !isQuoted;
        } else if (!isQuoted && character == QLatin1Char('[')) {
            if (isBracketed) {
                place.fail(QStringLiteral("A square bracket opens within another one."));
            }
            isBracketed = true;
        } else if (!isQuoted && character == QLatin1Char(']')) {
            if (!isBracketed) {
                place.fail(QStringLiteral("A square bracket closes that was not opened."));
            }
            isBracketed = false;
        } else if (!isQuoted && text.midRef(i, 2) == QLatin1String(";;")) {
            break;
        } else if (!isQuoted && !isBracketed && character == QLatin1Char(',')) {
            fields.append(QString());
            continue;
        }
        fields.last() += character;
    }
    if (isQuoted) {
        place.fail(QStringLiteral("A quotation mark is not closed."));
    }
    if (isBracketed) {
        place.fail(QStringLiteral("A square bracket is not closed."));
    }
    for (QString &field : fields) {
        field = field.trimmed();
    }
    return fields;
}

double readNumber(const QString &text, const Place &place)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        place.fail(QStringLiteral("\"%1\" is no number.").arg(text));
    }
    return number;
}

// Degrees, or another unit that a letter behind the number names.
double readDegrees(const QString &text, const Place &place)
{
    const QChar unit = text.isEmpty() ? QChar() : text.at(text.size() - 1).toLower();
    const QString number = text.left(text.size() - 1).trimmed();
    if (unit == QLatin1Char('d')) {
        return readNumber(number, place);
    }
    if (unit == QLatin1Char('r')) {
        return qRadiansToDegrees(readNumber(number, place));
    }
    if (unit == QLatin1Char('g')) {
        return readNumber(number, place) * 360 / 400;
    }
    return readNumber(text, place);
}

// One of "S=.1", "R=45", "A=0", "U=0", "X=-.1", "Y=-.05".
void readSetting(const QString &text, Element &element, const Place &place)
{
    const int equals = text.indexOf(QLatin1Char('='));
    const QString key = text.left(equals).trimmed().toUpper();
    if (equals < 0 || key.size() != 1) {
        place.fail(QStringLiteral("\"%1\" is no setting of a text or shape.").arg(text));
    }
    const QString value = text.mid(equals + 1).trimmed();
    switch (key.at(0).unicode()) {
    case 'S':
        element.scale = readNumber(value, place);
        return;
    case 'X':
        element.offsetX = readNumber(value, place);
        return;
    case 'Y':
        element.offsetY = readNumber(value, place);
        return;
    case 'R':
    // Kept upright along the line; what is left of it is a rotation against the line.
    case 'U':
    case 'A':
        element.rotationDegrees = readDegrees(value, place);
        element.isRotationAbsolute = key == QLatin1String("A");
        return;
    default:
        place.fail(QStringLiteral("\"%1\" is no setting of a text or shape.").arg(text));
    }
}

// @param field with its brackets.
void readComplexElement(const QString &field, Element &element, const Place &place)
{
    if (!field.endsWith(QLatin1Char(']'))) {
        place.fail(QStringLiteral("A comma is missing behind \"%1\".")
                       .arg(field.left(field.lastIndexOf(QLatin1Char(']')) + 1)));
    }
    const QStringList parts = splitFields(field.mid(1, field.size() - 2), place);
    const QString &content = parts.at(0);
    const bool isText = content.startsWith(QLatin1Char('"'));
    element.kind = isText ? Element::Kind::Text : Element::Kind::Shape;
    element.content = isText ? content.mid(1, content.size() - 2) : content;
    element.style = parts.value(1);
    if (element.content.isEmpty() || element.style.isEmpty()
        || (isText && content.indexOf(QLatin1Char('"'), 1) != content.size() - 1)) {
        place.fail(isText ? QStringLiteral("A text needs its characters and a text style.")
                          : QStringLiteral("A shape needs its name and a shape file."));
    }
    for (int i = 2; i < parts.size(); ++i) {
        readSetting(parts.at(i), element, place);
    }
}

std::vector<Element> readElements(const QString &line, const Place &place)
{
    QStringList fields = splitFields(line, place);
    if (fields.takeFirst().compare(QLatin1String("A"), Qt::CaseInsensitive) != 0) {
        place.fail(QStringLiteral("A definition begins with \"A,\"."));
    }
    // A comma at the end is common and harmless.
    if (!fields.isEmpty() && fields.last().isEmpty()) {
        fields.removeLast();
    }
    std::vector<Element> elements;
    for (const QString &field : fields) {
        if (!field.startsWith(QLatin1Char('['))) {
            elements.emplace_back();
            elements.back().length = readNumber(field, place);
        } else if (elements.empty() || elements.back().kind != Element::Kind::Plain) {
            place.fail(QStringLiteral("A text or shape needs a length before it."));
        } else {
            readComplexElement(field, elements.back(), place);
        }
    }
    if (elements.empty()) {
        place.fail(QStringLiteral("The definition has no lengths."));
    }
    return elements;
}

CKvFileImagePtr openFile(const QString &path)
{
    try {
        return CKvFileImage::open(path, CKvFileImage::Holding::Copied);
    } catch (const CKvDxfError &error) {
        // Callers look for the style elsewhere when the code is this one.
        throw OdError(OdResult::kUndefinedLineType, error.what());
    }
}

} // namespace

CKvLineTypeDefinition readLineTypeFile(const QString &path, const QString &name)
{
    const QStringList lines = linesOf(openFile(path)->bytes());
    CKvLineTypeDefinition definition;
    int heading = -1;
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (heading < 0) {
            const bool isHeading = readHeading(line, definition.name, definition.description);
            const bool isWanted = definition.name.compare(name, Qt::CaseInsensitive) == 0;
            heading = isHeading && !name.isEmpty() && isWanted ? i : -1;
            continue;
        }
        if (line.isEmpty() || isComment(line)) {
            continue;
        }
        if (line.startsWith(QLatin1Char('*'))) {
            break;
        }
        definition.elements = readElements(line, { path, i + 1 });
        return definition;
    }
    if (heading >= 0) {
        throw CKvDxfError(
            path, heading + 1, QStringLiteral("The line style %1 has no definition.").arg(name));
    }
    throw OdError(OdResult::kUndefinedLineType,
                  QStringLiteral("%1 has no line style %2.").arg(path, name).toStdString());
}

QStringList lineTypeNames(const QString &path)
{
    QStringList names;
    for (const QString &line : linesOf(openFile(path)->bytes())) {
        QString name;
        QString description;
        if (readHeading(line.trimmed(), name, description) && !name.isEmpty()
            && !names.contains(name, Qt::CaseInsensitive)) {
            names << name;
        }
    }
    return names;
}

std::vector<Element> readLineTypePattern(const QString &pattern)
{
    const QString definition = pattern.trimmed();
    const bool hasAlignment = definition.startsWith(QLatin1Char('A'), Qt::CaseInsensitive);
    return readElements(hasAlignment ? definition : QString(QLatin1String("A,") + definition),
                        { QString(), 0 });
}
