// SPDX-License-Identifier: MIT
#include "formFacts.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace
{

std::string policyText(const QSizePolicy &policy)
{
    const QMetaEnum names = QMetaEnum::fromType<QSizePolicy::Policy>();
    return std::string(names.valueToKey(policy.horizontalPolicy())) + " x "
        + names.valueToKey(policy.verticalPolicy());
}

std::string sizeText(const QSize &size)
{
    return std::to_string(size.width()) + 'x' + std::to_string(size.height());
}

std::string className(const QObject &object)
{
    return object.metaObject()->className();
}

void addItem(const QLayoutItem &item, const std::string &indent, std::string &text);

void addLayout(const QLayout &layout, const std::string &indent, std::string &text)
{
    text += indent + className(layout) + ' ' + layout.objectName().toStdString() + '\n';
    for (int i = 0; i < layout.count(); ++i) {
        addItem(*layout.itemAt(i), indent + "  ", text);
    }
}

void addItem(const QLayoutItem &constItem, const std::string &indent, std::string &text)
{
    auto &item = const_cast<QLayoutItem &>(constItem);
    if (const QLayout *layout = item.layout()) {
        addLayout(*layout, indent, text);
    } else if (const QSpacerItem *spacer = item.spacerItem()) {
        text += indent + "spacer " + sizeText(spacer->sizeHint()) + ' '
            + policyText(spacer->sizePolicy()) + '\n';
    } else {
        text += indent + className(*item.widget()) + ' ' + item.widget()->objectName().toStdString()
            + '\n';
    }
}

const QObject *find(const QWidget &window, const QString &path)
{
    if (path.isEmpty()) {
        return &window;
    }
    const QStringList parts = path.split(QLatin1Char('/'));
    if (parts.size() == 1) {
        return window.findChild<QWidget *>(path);
    }
    const auto *table = window.findChild<QTableWidget *>(parts.first());
    if (!table) {
        return nullptr;
    }
    return parts.last() == QLatin1String("horizontalHeader") ? table->horizontalHeader()
                                                             : table->verticalHeader();
}

} // namespace

std::string layoutTree(const QWidget &window)
{
    std::string text;
    if (window.layout()) {
        addLayout(*window.layout(), std::string(), text);
    }
    return text;
}

std::string propertyText(const QObject &object, const char *property)
{
    if (std::string(property) == "class") {
        return className(object);
    }
    const int index = object.metaObject()->indexOfProperty(property);
    if (index < 0) {
        return "no such property";
    }
    const QMetaProperty meta = object.metaObject()->property(index);
    const QVariant value = meta.read(&object);
    if (meta.isFlagType()) {
        return meta.enumerator().valueToKeys(value.toInt()).toStdString();
    }
    if (meta.isEnumType()) {
        return meta.enumerator().valueToKey(value.toInt());
    }
    if (value.type() == QVariant::Size) {
        return sizeText(value.toSize());
    }
    if (value.type() == QVariant::SizePolicy) {
        return policyText(value.value<QSizePolicy>());
    }
    return value.toString().toStdString();
}

void expectFacts(const QWidget &window, const std::vector<FormFact> &facts)
{
    for (const FormFact &fact : facts) {
        const QObject *object = find(window, QString::fromLatin1(fact.object));
        if (!object) {
            ADD_FAILURE() << "no widget " << fact.object;
            continue;
        }
        EXPECT_EQ(propertyText(*object, fact.property), fact.value)
            << fact.object << '.' << fact.property;
    }
}
