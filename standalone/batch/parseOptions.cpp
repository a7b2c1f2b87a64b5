// SPDX-License-Identifier: MIT
#include "parseOptions.h"

#include "CKvCategory.h"
#include "CKvUsageError.h"
#include "commandLineOptions.h"
#include "toolVersion.h"

#include <algorithm>
#include <limits>

namespace
{

const std::map<std::string, CKvReportFormat> &reportFormats()
{
    static const std::map<std::string, CKvReportFormat> s_formats = {
        { "text", CKvReportFormat::Text },       { "json", CKvReportFormat::Json },
        { "jsonl", CKvReportFormat::JsonLines }, { "sarif", CKvReportFormat::Sarif },
        { "junit", CKvReportFormat::Junit },     { "html", CKvReportFormat::Html },
        { "csv", CKvReportFormat::Csv }
    };
    return s_formats;
}

const std::map<std::string, CKvCandidateChoice> &candidateChoices()
{
    static const std::map<std::string, CKvCandidateChoice> s_choices = {
        { "recommended", CKvCandidateChoice::Recommended },
        { "all", CKvCandidateChoice::All },
        { "none", CKvCandidateChoice::None }
    };
    return s_choices;
}

const std::map<std::string, CKvWhen> &whens()
{
    static const std::map<std::string, CKvWhen> s_whens = { { "auto", CKvWhen::Auto },
                                                            { "always", CKvWhen::Always },
                                                            { "never", CKvWhen::Never } };
    return s_whens;
}

void addCategories(CLI::App &command, QStringList &target)
{
    command.add_option_function<std::string>(
        "--only",
        [&target](const std::string &list) {
            target.clear();
            for (const QString &word : QString::fromStdString(list).split(QLatin1Char(','))) {
                target << word.trimmed();
            }
        },
        "Categories, comma separated: " + categoryWords().join(QLatin1Char(',')).toStdString());
}

void addLanguage(CLI::App &command)
{
    command.add_option("--lang", "Language of text and html reports; there is English only")
        ->type_name("LANGUAGE")
        ->check(CLI::IsMember({ "en" }));
}

/// Empty for a number of seconds that a timer can wait.
std::string timeoutFault(const std::string &text)
{
    // A timer counts milliseconds in an int.
    constexpr double kLongestTimeout = std::numeric_limits<int>::max() / 1000.0;
    bool isNumber = false;
    const double seconds = QString::fromStdString(text).toDouble(&isNumber);
    // Not a number is neither.
    const bool isInRange = seconds > 0 && seconds <= kLongestTimeout;
    return isNumber && isInRange ? std::string()
                                 : text + " is no number of seconds above 0 and up to "
            + std::to_string(int(kLongestTimeout));
}

void addRunOptions(CLI::App &command, CKvRunOptions &run)
{
    addTexts(command,
             "DRAWING",
             run.inputs,
             "Drawings; a folder stands for every .dxf and .dws below it")
        ->type_name("");
    addText(command,
            "--files-from",
            run.filesFrom,
            "Read the drawings from FILE, one a line (- for standard input)")
        ->type_name("FILE");
    addRepeated(command,
                "-s,--standards",
                run.check.standards,
                "Check against FILE in place of the drawing's own list; may be repeated")
        ->type_name("FILE");
    addRepeated(command,
                "--search-path",
                run.check.searchPaths,
                "Search stored standards files in DIR too; may be repeated")
        ->type_name("DIR");
    addText(command, "--preferred", run.check.preferred, "The preferred standards file")
        ->type_name("FILE");
    addCategories(command, run.check.categories);
    addChoice(command, "-f,--format", reportFormats(), run.format, "Format of the report")
        ->type_name("FORMAT");
    addChoice(command,
              "--candidates",
              candidateChoices(),
              run.check.candidates,
              "Candidate repairs in the report")
        ->type_name("WHICH");
    command.add_flag("--include-ignored", run.includesIgnored, "Count ignored violations as open");
    command.add_option("-j,--jobs", run.jobs, "Worker processes; 0 for one a processor")
        ->type_name("N")
        ->check(CLI::Range(0, 1024));
    command.add_option("--timeout", run.timeoutSeconds, "Give a drawing up after SECONDS")
        ->type_name("SECONDS")
        ->check(timeoutFault);
    command.add_flag("-q,--quiet", run.isQuiet, "Text report: only what is wrong");
    addChoice(command, "--color", whens(), run.color, "Colours in the text report")
        ->type_name("WHEN");
    addChoice(command, "--progress", whens(), run.progress, "Progress on standard error")
        ->type_name("WHEN");
    addLanguage(command);
}

/// The command line as CLI sees it. Its callbacks write into the options that it was made for.
class CKvCommandLine
{
public:
    CKvCommandLine()
        : m_app("Checks drawings against their standards and repairs them.", "kvstandards")
    {
        m_app.set_version_flag("--version", std::string("kvstandards ") + toolVersion());
        m_app.require_subcommand(1);
        addCheck();
        addFix();
        addFiles();
        addIgnore();
        addShow();
        m_app.footer(kFooter);
    }

    /// @throws CLI::ParseError, CKvUsageError.
    CKvBatchOptions parse(const QStringList &arguments)
    {
        requireKnownCommand(arguments);
        // The parser takes them from the end.
        std::vector<std::string> reversed;
        for (const QString &argument : arguments) {
            reversed.insert(reversed.begin(), argument.toStdString());
        }
        m_app.parse(reversed);
        requireSense();
        return m_options;
    }

    int exit(const CLI::ParseError &error, std::ostream &out, std::ostream &err)
    {
        return m_app.exit(error, out, err);
    }

private:
    static constexpr const char *kFooter = "Exit status: 0 all checked and clean, 1 violations, 2 "
                                           "wrong usage, 3 something could not be "
                                           "done.";

    CLI::App &addCommand(const char *name, const char *description, CKvCommandKind kind)
    {
        CLI::App *command = m_app.add_subcommand(name, description);
        command->callback([this, kind] { m_options.command = kind; });
        command->footer(kFooter);
        return *command;
    }

    void addCheck()
    {
        CLI::App &command = addCommand("check", "Report the violations", CKvCommandKind::Check);
        addRunOptions(command, m_options.run);
        addText(command, "-o,--output", m_options.run.reportFile, "Write the report to FILE")
            ->type_name("FILE");
    }

    void addFix()
    {
        CLI::App &command = addCommand("fix", "Repair the violations", CKvCommandKind::Fix);
        CKvFixOptions &fix = m_options.run.fix;
        addRunOptions(command, m_options.run);
        addText(command, "-o,--output", m_options.run.outputFolder, "Write the drawings to DIR")
            ->type_name("DIR");
        command.add_flag(
            "--in-place", m_options.run.isInPlace, "Replace the drawings, after a copy NAME.bak");
        command.add_flag(
            "--no-backup",
            [&fix](std::int64_t) { fix.keepsBackup = false; },
            "Make no copy NAME.bak");
        command.add_flag("--dry-run", fix.isDryRun, "Write nothing, report what would change");
        command.add_flag(
            "--diff", fix.wantsDifference, "Print the change of each drawing as a unified diff");
        addText(command,
                "--map",
                m_options.run.mapFile,
                "Candidates to take where none is recommended: CSV with "
                "category,name,target[,standards file]")
            ->type_name("FILE");
    }

    void addDrawingOptions(CLI::App &command)
    {
        addText(command, "DRAWING", m_options.drawing.drawing, "The drawing")
            ->required()
            ->type_name("");
    }

    void addFormat(CLI::App &command)
    {
        static const std::map<std::string, CKvReportFormat> s_formats = {
            { "text", CKvReportFormat::Text }, { "json", CKvReportFormat::Json }
        };
        addChoice(
            command, "-f,--format", s_formats, m_options.drawing.format, "Format of the output")
            ->type_name("FORMAT");
    }

    void addFiles()
    {
        CLI::App &command = addCommand(
            "files", "List, add or remove the drawing's standards files", CKvCommandKind::Files);
        addDrawingOptions(command);
        addRepeated(command,
                    "--add",
                    m_options.drawing.added,
                    "Put FILE behind the others; may be repeated")
            ->type_name("FILE");
        addRepeated(
            command, "--remove", m_options.drawing.removed, "Take FILE out; may be repeated")
            ->type_name("FILE");
        addRepeated(command,
                    "--search-path",
                    m_options.drawing.searchPaths,
                    "Search stored standards files in DIR too; may be repeated")
            ->type_name("DIR");
        addFormat(command);
    }

    void addIgnore()
    {
        CLI::App &command = addCommand(
            "ignore", "Stamp the violation of an object as ignored", CKvCommandKind::Ignore);
        addDrawingOptions(command);
        addText(command, "CATEGORY", m_options.drawing.category, "layers, for instance")
            ->required()
            ->type_name("");
        addText(command, "NAME", m_options.drawing.name, "Name of the object")
            ->required()
            ->type_name("");
        command.add_flag(
            "--off",
            [this](std::int64_t) { m_options.drawing.isIgnored = false; },
            "Take the stamp back");
    }

    void addShow()
    {
        CLI::App &command = addCommand("show",
                                       "List the layers and styles of a drawing with their values",
                                       CKvCommandKind::Show);
        addDrawingOptions(command);
        addCategories(command, m_options.drawing.categories);
        addFormat(command);
        addChoice(command, "--color", whens(), m_options.drawing.color, "Colours in the text")
            ->type_name("WHEN");
    }

    /// The parser would only say that a command is missing.
    void requireKnownCommand(const QStringList &arguments)
    {
        const std::string first = arguments.isEmpty() ? "-" : arguments.first().toStdString();
        const auto hasName = [&first](const CLI::App *command) {
            return command->check_name(first);
        };
        const std::vector<const CLI::App *> commands = std::as_const(m_app).get_subcommands({});
        if (first.rfind('-', 0) != 0 && std::none_of(commands.begin(), commands.end(), hasName)) {
            throw CKvUsageError(
                QStringLiteral("There is no command \"%1\". The commands are check, "
                               "fix, files, ignore and show.")
                    .arg(arguments.first()));
        }
    }

    /// What no parser can tell: options that don't go together, categories, the map.
    void requireSense()
    {
        const CKvRunOptions &run = m_options.run;
        categoriesOf(run.check.categories);
        categoriesOf(m_options.drawing.categories);
        if (m_options.command == CKvCommandKind::Ignore) {
            categoryOf(m_options.drawing.category);
        }
        if (m_options.command == CKvCommandKind::Fix) {
            requireSenseOfFix();
        }
        if (!run.mapFile.isEmpty()) {
            m_options.run.fix.map = readRepairMap(run.mapFile);
        }
    }

    void requireSenseOfFix()
    {
        CKvRunOptions &run = m_options.run;
        if (run.isInPlace && !run.outputFolder.isEmpty()) {
            throw CKvUsageError(QStringLiteral("--output and --in-place exclude each other."));
        }
        const bool hasTarget = run.isInPlace || !run.outputFolder.isEmpty();
        if (!hasTarget && !run.fix.isDryRun && !run.fix.wantsDifference) {
            throw CKvUsageError(
                QStringLiteral("Where shall the repaired drawings go? Give --output DIR, "
                               "--in-place or --dry-run."));
        }
        // A difference alone is for looking at.
        run.fix.isDryRun = run.fix.isDryRun || !hasTarget;
        if (run.fix.wantsDifference && run.format != CKvReportFormat::Text) {
            throw CKvUsageError(QStringLiteral("--diff goes with the text format only."));
        }
    }

    CLI::App m_app;
    CKvBatchOptions m_options;
};

} // namespace

CKvParsedCommandLine parseOptions(const QStringList &arguments)
{
    CKvCommandLine commandLine;
    CKvParsedCommandLine parsed;
    try {
        parsed.options = commandLine.parse(arguments);
    } catch (const CLI::ParseError &error) {
        // Help and version come this way too, with status 0.
        std::ostringstream out;
        std::ostringstream err;
        const bool isWrong = commandLine.exit(error, out, err) != 0;
        parsed.status = isWrong ? CKvExitStatus::WrongUsage : CKvExitStatus::Clean;
        parsed.text = QString::fromStdString(isWrong ? err.str() : out.str());
    } catch (const CKvUsageError &error) {
        parsed.status = CKvExitStatus::WrongUsage;
        parsed.text = error.text() + QLatin1Char('\n');
    }
    return parsed;
}
