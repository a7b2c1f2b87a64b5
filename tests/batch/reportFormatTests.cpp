// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <QXmlStreamReader>
#include <gmock/gmock.h>

using ::testing::HasSubstr;
using ::testing::Not;

namespace
{

class BatchReport : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        CKvDrawingBuilder drawing("AC1032");
        drawing.withDefaults();
        drawing.layer("WALLS").color(1).lineWeight(25).handle("2A0");
        drawing.layer("Flur, \"alt\" & <neu>").handle("2A1");
        drawing.layer("DOORS").color(2).handle("2A2").stamped(1, "anna");
        save(QStringLiteral("a.dxf"), drawing);
    }
    CKvBatchRun report(const char *format) const
    {
        return run({ QStringLiteral("check"),
                     QStringLiteral("a.dxf"),
                     QStringLiteral("gone.dxf"),
                     QStringLiteral("-s"),
                     QStringLiteral("std.dxf"),
                     QStringLiteral("-j"),
                     QStringLiteral("1"),
                     QStringLiteral("-f"),
                     QString::fromUtf8(format) });
    }
    std::string withoutFolder(std::string text) const
    {
        const std::string folder = fullPath(QString());
        for (std::size_t at = text.find(folder); at != std::string::npos; at = text.find(folder)) {
            text.replace(at, folder.size(), "FOLDER");
        }
        return text;
    }
};

/// The report of the drawing above, but for the folder.
constexpr char kJsonReport[] = R"({
  "schema": 1,
  "tool": {
    "name": "kvstandards",
    "version": ")" KV_TEST_VERSION R"("
  },
  "summary": {
    "drawings": 1,
    "failed": 0,
    "violations": 2,
    "ignored": 1
  },
  "drawings": [
    {
      "path": "a.dxf",
      "status": "checked",
      "error": "",
      "standards": [
        {
          "path": "FOLDER/std.dxf",
          "name": "std.dxf",
          "status": "read",
          "error": ""
        }
      ],
      "violations": [
        {
          "rule": "layers.properties",
          "category": "layers",
          "kind": "properties",
          "name": "WALLS",
          "handle": "2A0",
          "type": "Layer",
          "message": "Layer properties are non-standard.",
          "ignored": false,
          "ignoredBy": "",
          "properties": {
            "LineColor": "red",
            "LineStyle": "Continuous",
            "LineWeight": "0.25 mm",
            "Name": "WALLS"
          },
          "candidates": 3,
          "recommended": 1,
          "fixes": [
            {
              "index": 1,
              "name": "WALLS",
              "standardsFile": "FOLDER/std.dxf",
              "differences": [
                {
                  "property": "LineColor",
                  "current": "red",
                  "standard": "blue"
                },
                {
                  "property": "LineWeight",
                  "current": "0.25 mm",
                  "standard": "0.50 mm"
                }
              ]
            }
          ]
        },
        {
          "rule": "layers.name",
          "category": "layers",
          "kind": "name",
          "name": "Flur, \"alt\" & <neu>",
          "handle": "2A1",
          "type": "Layer",
          "message": "Layer name is non-standard.",
          "ignored": false,
          "ignoredBy": "",
          "properties": {
            "LineColor": "white",
            "LineStyle": "Continuous",
            "LineWeight": "Default",
            "Name": "Flur, \"alt\" & <neu>"
          },
          "candidates": 3,
          "recommended": -1,
          "fixes": []
        },
        {
          "rule": "layers.properties",
          "category": "layers",
          "kind": "properties",
          "name": "DOORS",
          "handle": "2A2",
          "type": "Layer",
          "message": "Layer properties are non-standard.",
          "ignored": true,
          "ignoredBy": "anna",
          "properties": {
            "LineColor": "yellow",
            "LineStyle": "Continuous",
            "LineWeight": "Default",
            "Name": "DOORS"
          },
          "candidates": 3,
          "recommended": 2,
          "fixes": [
            {
              "index": 2,
              "name": "DOORS",
              "standardsFile": "FOLDER/std.dxf",
              "differences": [
                {
                  "property": "LineColor",
                  "current": "yellow",
                  "standard": "green"
                }
              ]
            }
          ]
        }
      ],
      "output": "",
      "repaired": [],
      "notRepaired": []
    }
  ]
}
)";

} // namespace

TEST_F(BatchReport, JsonHasTheKeysInTheirOrder)
{
    const CKvBatchRun result = run({ QStringLiteral("check"),
                                     QStringLiteral("a.dxf"),
                                     QStringLiteral("-s"),
                                     QStringLiteral("std.dxf"),
                                     QStringLiteral("-f"),
                                     QStringLiteral("json") });

    EXPECT_EQ(withoutFolder(result.output), kJsonReport);
}

TEST_F(BatchReport, JsonLinesHaveEachDrawingOnALineAndNoFrame)
{
    const CKvBatchRun whole = report("json");
    const CKvBatchRun lines = report("jsonl");

    EXPECT_EQ(lines.status, whole.status);
    std::string expected;
    const auto report = json(whole);
    for (const auto &drawing : report.at("drawings")) {
        expected += drawing.dump() + "\n";
    }
    EXPECT_EQ(lines.output, expected);
}

TEST_F(BatchReport, CsvHasARowForEachDifferenceAndEachFailure)
{
    EXPECT_EQ(
        withoutFolder(report("csv").output),
        "drawing,status,rule,name,handle,ignored,ignored by,message,property,current,standard,"
        "candidate,standards file\n"
        "a.dxf,checked,layers.properties,WALLS,2A0,no,,Layer properties are non-standard.,"
        "LineColor,red,blue,WALLS,FOLDER/std.dxf\n"
        "a.dxf,checked,layers.properties,WALLS,2A0,no,,Layer properties are non-standard.,"
        "LineWeight,0.25 mm,0.50 mm,WALLS,FOLDER/std.dxf\n"
        "a.dxf,checked,layers.name,\"Flur, \"\"alt\"\" & <neu>\",2A1,no,,Layer name is "
        "non-standard.,,,,,\n"
        "a.dxf,checked,layers.properties,DOORS,2A2,yes,anna,Layer properties are "
        "non-standard.,LineColor,yellow,green,DOORS,FOLDER/std.dxf\n"
        "gone.dxf,failed,,,,,,gone.dxf: There is no such file.,,,,,\n");
}

TEST_F(BatchReport, JunitHasASuiteForEachDrawing)
{
    const CKvBatchRun result = report("junit");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(withoutFolder(result.output), R"(<?xml version="1.0"?>
<testsuites name="kvstandards">
  <testsuite name="a.dxf" tests="3" failures="2" errors="0" skipped="1">
    <testcase classname="a.dxf" name="layers.properties WALLS">
      <failure message="Layer properties are non-standard." type="layers.properties">LineColor: red, standard blue (WALLS in FOLDER/std.dxf)
LineWeight: 0.25 mm, standard 0.50 mm (WALLS in FOLDER/std.dxf)
</failure>
    </testcase>
    <testcase classname="a.dxf" name="layers.name Flur, &quot;alt&quot; &amp; &lt;neu&gt;">
      <failure message="Layer name is non-standard." type="layers.name"/>
    </testcase>
    <testcase classname="a.dxf" name="layers.properties DOORS">
      <skipped message="ignored by anna"/>
    </testcase>
  </testsuite>
  <testsuite name="gone.dxf" tests="1" failures="0" errors="1" skipped="0">
    <testcase classname="gone.dxf" name="standards">
      <error message="gone.dxf: There is no such file."/>
    </testcase>
  </testsuite>
</testsuites>
)");
}

TEST_F(BatchReport, SarifHasAResultForEachViolationAndANotificationForEachFailure)
{
    const auto sarif = json(report("sarif"));

    const auto &log = sarif.at("runs").at(0);
    EXPECT_EQ(sarif.at("version"), "2.1.0");
    EXPECT_EQ(log.at("tool").at("driver").at("name"), "kvstandards");
    EXPECT_EQ(log.at("tool").at("driver").at("rules").size(), 8U);
    EXPECT_EQ(log.at("invocations").at(0).at("executionSuccessful"), false);
    EXPECT_EQ(
        log.at("invocations").at(0).at("toolExecutionNotifications").at(0).at("message").at("text"),
        "gone.dxf: There is no such file.");
    std::string results;
    for (const auto &result : log.at("results")) {
        results += result.at("ruleId").get<std::string>() + " "
            + result.at("locations")
                  .at(0)
                  .at("physicalLocation")
                  .at("artifactLocation")
                  .at("uri")
                  .get<std::string>()
            + (result.contains("suppressions") ? " suppressed" : "") + ": "
            + result.at("message").at("text").get<std::string>() + "\n";
    }
    EXPECT_EQ(
        results,
        "layers.properties a.dxf: Layer WALLS: Layer properties are non-standard. LineColor: red, "
        "standard blue. LineWeight: 0.25 mm, standard 0.50 mm.\n"
        "layers.name a.dxf: Layer Flur, \"alt\" & <neu>: Layer name is non-standard.\n"
        "layers.properties a.dxf suppressed: Layer DOORS: Layer properties are non-standard. "
        "LineColor: yellow, standard green.\n");
}

TEST_F(BatchReport, HtmlShowsNamesAsTextAndNotAsMarkup)
{
    const CKvBatchRun result = report("html");

    EXPECT_THAT(result.output, HasSubstr("<td>Flur, &quot;alt&quot; &amp; &lt;neu&gt;</td>"));
    EXPECT_THAT(result.output, Not(HasSubstr("<neu>")));
    EXPECT_THAT(result.output, HasSubstr("<td>LineColor</td><td>red</td><td>blue</td>"));
    EXPECT_THAT(result.output,
                HasSubstr("<p class=\"trouble\">gone.dxf: There is no such file.</p>"));
    EXPECT_THAT(result.output, HasSubstr("Drawings: 2, failed: 1. Violations: 2, ignored: 1."));
}

TEST_F(BatchReport, XmlFormatsAreWellFormedAlsoWithControlCharactersInNames)
{
    CKvDrawingBuilder drawing("AC1032");
    drawing.layer("A\x01\x1B[31m");
    save(QStringLiteral("a.dxf"), drawing);

    QXmlStreamReader xml(QByteArray::fromStdString(report("junit").output));
    while (!xml.atEnd()) {
        xml.readNext();
    }

    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

TEST_F(BatchReport, TheStatusNeverDependsOnTheFormat)
{
    for (const char *format : { "text", "json", "jsonl", "sarif", "junit", "html", "csv" }) {
        EXPECT_EQ(report(format).status, 3) << format;
    }
}
