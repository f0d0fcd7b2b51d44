// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include "pictures/picture_libraries.h"
#include "pictures/picture_writer.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <array>
#include <limits>
#include <span>

namespace zelto {
namespace {

// What is wrong with a value; null when nothing is.
using Complaint = QString;

struct Option {
    const char* shortName;
    const char* name;
    const char* valueName;  // null for a switch
    const char* help;
    Complaint (*apply)(CommandLine& line, const QString& value);
};

Complaint wrongValue(const QString& value, const QString& expected) {
    return QStringLiteral("takes %1, not “%2”").arg(expected, value);
}

template <class Value>
struct Choice {
    const char* word;
    Value value;
};

template <class Value>
Complaint choose(std::span<const Choice<Value>> choices, const QString& word, Value& chosen) {
    QStringList words;
    for (const Choice<Value>& choice : choices) {
        if (word == QLatin1String(choice.word)) {
            chosen = choice.value;
            return {};
        }
        words.append(QLatin1String(choice.word));
    }
    return wrongValue(word, QStringLiteral("one of ") + words.join(QStringLiteral(", ")));
}

// A whole number from `least` to `most`.
Complaint number(const QString& text, int least, int most, int& value) {
    bool ok = false;
    const int parsed = text.toInt(&ok);
    if (!ok || parsed < least || parsed > most) {
        return wrongValue(text, most == std::numeric_limits<int>::max()
                                    ? QStringLiteral("a whole number from %1 on").arg(least)
                                    : QStringLiteral("a whole number from %1 to %2").arg(least).arg(most));
    }
    value = parsed;
    return {};
}

Complaint resize(CommandLine& line, const ResizeChoice& choice) {
    if (line.resize && line.resize->type != choice.type) {
        return QStringLiteral("cannot be given together with another way to resize");
    }
    line.resize = choice;
    return {};
}

Complaint resizeBoth(CommandLine& line, std::int64_t type, const QString& value) {
    static const QRegularExpression form(QStringLiteral("^(\\d{1,9})[x×](\\d{1,9})$"));
    const QRegularExpressionMatch match = form.match(value);
    if (!match.hasMatch()) {
        return wrongValue(value, QStringLiteral("WIDTHxHEIGHT in whole numbers from 0 on, such as 800x600"));
    }
    return resize(line, {type, match.captured(1).toLongLong(), match.captured(2).toLongLong()});
}

Complaint applyLongestSide(CommandLine& line, const QString& value) {
    int side = 0;
    const Complaint complaint = number(value, 0, std::numeric_limits<int>::max(), side);
    return complaint.isNull() ? resize(line, {resize_type::LongerSide, side, 0}) : complaint;
}

Complaint applyFormat(CommandLine& line, const QString& value) {
    static constexpr std::array<Choice<const char*>, 11> formats = {{{"same", nullptr},
                                                                     {"jpg", "jpg"},
                                                                     {"png", "png"},
                                                                     {"tiff", "tiff"},
                                                                     {"bmp", "bmp"},
                                                                     {"gif", "gif"},
                                                                     {"pdf", "pdf"},
                                                                     {"webp", "webp"},
                                                                     {"avif", "avif"},
                                                                     {"jxl", "jxl"},
                                                                     {"heic", "heic"}}};
    const char* extension = nullptr;
    const Complaint complaint = choose<const char*>(formats, value, extension);
    if (extension != nullptr && !pictureFormatForExtension(QString(QLatin1String(extension))))
        return QStringLiteral("cannot be %1: this machine has no encoder for it").arg(value);
    if (complaint.isNull()) {
        line.format = extension != nullptr ? QLatin1String(extension) : SameAsSourceFormat;
    }
    return complaint;
}

Complaint applyMetadata(CommandLine& line, const QString& value) {
    static constexpr std::array<Choice<std::int64_t>, 4> choices = {
        {{"all", exif_data::IncludeAll},
         {"copyright", exif_data::CopyrightOnly},
         {"no-gps", exif_data::ExcludeGeolocation},
         {"none", exif_data::ExcludeAll}}};
    return choose<std::int64_t>(choices, value, line.metadata.emplace());
}

Complaint applyExtensions(CommandLine& line, const QString& value) {
    static constexpr std::array<Choice<bool ScanFormats::*>, 9> formats = {{{"jpeg", &ScanFormats::Jpeg},
                                                                            {"png", &ScanFormats::Png},
                                                                            {"tiff", &ScanFormats::Tiff},
                                                                            {"gif", &ScanFormats::Gif},
                                                                            {"bmp", &ScanFormats::Bmp},
                                                                            {"heic", &ScanFormats::Heic},
                                                                            {"avif", &ScanFormats::Avif},
                                                                            {"webp", &ScanFormats::Webp},
                                                                            {"jxl", &ScanFormats::Jxl}}};
    line.extensions = {false, false, false, false, false};
    for (const QString& word : value.split(QLatin1Char(','))) {
        bool ScanFormats::*ticked = nullptr;
        const Complaint complaint = choose<bool ScanFormats::*>(formats, word.trimmed(), ticked);
        if (!complaint.isNull()) return complaint;
        line.extensions.*ticked = true;
    }
    return {};
}

Complaint applyShard(CommandLine& line, const QString& value) {
    const Result<Shard> shard =
        parseShard(value, [](const char* name) { return qEnvironmentVariable(name); });
    if (!shard) return shard.error().message;
    line.shard = *shard;
    return {};
}

Complaint applyRepeatedFailure(CommandLine& line, const QString& value) {
    static constexpr std::array<Choice<bool>, 2> answers = {{{"stop", false}, {"continue", true}}};
    return choose<bool>(answers, value, line.continueAfterFailures);
}

template <auto Rule>
Complaint applyNameRule(CommandLine& line, const QString& value) {
    static constexpr std::array<Choice<NameRule>, 4> rules = {{{"replace", NameRule::Replace},
                                                               {"number", NameRule::Number},
                                                               {"skip", NameRule::Skip},
                                                               {"fail", NameRule::Fail}}};
    return choose<NameRule>(rules, value, line.names.*Rule);
}

// A text that must not be empty.
template <auto Field>
Complaint text(CommandLine& line, const QString& value) {
    line.*Field = value;
    return value.isEmpty() ? QStringLiteral("needs a value") : Complaint();
}

template <auto Switch, bool State = true>
Complaint turn(CommandLine& line, const QString&) {
    line.*Switch = State;
    return {};
}

template <auto Field, int Least, int Most>
Complaint wholeNumber(CommandLine& line, const QString& value) {
    return number(value, Least, Most, (line.*Field).emplace());
}

constexpr int Unbounded = std::numeric_limits<int>::max();

const std::array Options = {
    Option{"s", "setting", "NAME_OR_FILE", "a saved setting's name, or the path of a .zcs file (needed)",
           text<&CommandLine::setting>},
    Option{"o", "output", "DIR", "output folder, made when missing (needed, unless --options names one)",
           text<&CommandLine::output>},
    Option{nullptr, "options", "FILE", "start from an OutputSettings.xml; the options below override it",
           text<&CommandLine::optionsFile>},
    Option{"f", "format", "FORMAT",
           "same, jpg, png, tiff, bmp, gif, pdf, webp, avif, jxl or heic (default: same)", applyFormat},
    Option{"q", "quality", "0..100",
           "quality of JPEG, WebP, AVIF, JPEG XL and HEIC; at 100 WebP, JPEG XL\nand, where its encoder can, "
           "AVIF are lossless (default: 90)",
           wholeNumber<&CommandLine::quality, 0, 100>},
    Option{nullptr, "jpeg-lossless", nullptr,
           "JPEG to JPEG: only the blocks that a watermark touches are encoded\nagain, with the photo's own "
           "quality and chroma (on halved chroma\ncolored edges of marks are softer); photos it cannot be "
           "done for are\nencoded as usual, and the report says why",
           turn<&CommandLine::jpegLossless>},
    Option{nullptr, "rename", "PATTERN",
           "output name: [O] original name, [#] to [####] number in the list,\n"
           "[D] today as MMDDYYYY, [DD] as DDMMYYYY, and the macros of texts:\n"
           "'<<EXIF:DateTimeOriginal[Y-M-D]>>_[###]'",
           text<&CommandLine::rename>},
    Option{nullptr, "resize-percent", "WxH", "resize each side by its percentage",
           [](CommandLine& line, const QString& value) {
               return resizeBoth(line, resize_type::Percentage, value);
           }},
    Option{
        nullptr, "resize-pixels", "WxH",
        "resize to a width and height in pixels, 0 for one that is not given",
        [](CommandLine& line, const QString& value) { return resizeBoth(line, resize_type::Pixels, value); }},
    Option{nullptr, "longest-side", "N", "resize the longer side to N pixels", applyLongestSide},
    Option{nullptr, "keep-aspect", nullptr, "keep proportions when resizing", turn<&CommandLine::keepAspect>},
    Option{nullptr, "no-enlarge", nullptr, "never make a photo larger", turn<&CommandLine::noEnlarge>},
    Option{nullptr, "combine-pdf", nullptr, "all photos into one PDF (with --format pdf)",
           turn<&CommandLine::combinePdf>},
    Option{nullptr, "keep-structure", nullptr, "mirror the source folders in the output folder",
           turn<&CommandLine::keepStructure>},
    Option{nullptr, "metadata", "WHAT",
           "all, copyright, no-gps (positions go, names of places stay) or none (default: all)",
           applyMetadata},
    Option{nullptr, "copyright", "FILE",
           "a Copyright.xml to write into the outputs\n(default: your own, if the setting asks for it)",
           text<&CommandLine::copyrightFile>},
    Option{"r", "recursive", nullptr, "scan sub-folders too", turn<&CommandLine::recursive>},
    Option{nullptr, "extensions", "LIST",
           "what a folder scan takes, of jpeg,png,tiff,gif,bmp (default: these)\nand heic,avif,webp,jxl",
           applyExtensions},
    Option{"j", "jobs", "N", "photos worked on at a time (default: the number of cores)",
           wholeNumber<&CommandLine::jobs, 1, Unbounded>},
    Option{nullptr, "shard", "I/N",
           "only every Nth photo of the list, from I on (0-based);\nauto, auto/N: as a Slurm array or a "
           "Kubernetes Job has it",
           applyShard},
    Option{nullptr, "on-repeated-failure", "WHAT",
           "stop or continue after 3 failures in a row (default: stop)", applyRepeatedFailure},
    Option{
        nullptr, "same-name", "WHAT",
        "photos of the run with the same output: replace (with a\nwarning), number, skip or fail (default: "
        "replace)",
        applyNameRule<&NameRules::sameName>},
    Option{nullptr, "existing", "WHAT",
           "outputs that stand there before the run: replace, number,\nskip or fail (default: replace)",
           applyNameRule<&NameRules::existing>},
    Option{nullptr, "strict", nullptr, "a photo with a warning fails and is not written",
           turn<&CommandLine::strict>},
    Option{nullptr, "overwrite-originals", nullptr, "allow outputs that replace photos of the list",
           turn<&CommandLine::overwriteOriginals>},
    Option{nullptr, "dry-run", nullptr, "print what would be written, and write nothing",
           turn<&CommandLine::dryRun>},
    Option{nullptr, "json", nullptr, "report as JSON on standard output", turn<&CommandLine::json>},
    Option{nullptr, "merge-reports", nullptr,
           "the arguments are JSON reports of the shards of one list:\nprint one report, and exit as one run "
           "would",
           turn<&CommandLine::mergeReports>},
    Option{nullptr, "quiet", nullptr, "print nothing but errors", turn<&CommandLine::quiet>},
    Option{nullptr, "no-color", nullptr, "no colors", turn<&CommandLine::color, false>},
    Option{nullptr, "no-progress", nullptr, "plain lines instead of a progress bar",
           turn<&CommandLine::progress, false>},
    Option{"h", "help", nullptr, "this help", turn<&CommandLine::help>},
    Option{nullptr, "version", nullptr, "the version", turn<&CommandLine::version>},
};

QCommandLineOption qtOption(const Option& option) {
    QStringList names;
    if (option.shortName != nullptr) names.append(QLatin1String(option.shortName));
    names.append(QLatin1String(option.name));
    QCommandLineOption result(names);
    if (option.valueName != nullptr) result.setValueName(QLatin1String(option.valueName));
    // Lets a value follow its letter at once, as in -j4.
    if (option.shortName != nullptr && option.valueName != nullptr) {
        result.setFlags(QCommandLineOption::ShortOptionStyle);
    }
    return result;
}

// What makes options that are fine by themselves useless together.
Complaint contradiction(const CommandLine& line) {
    if (line.mergeReports) {
        return line.inputs.isEmpty() ? QStringLiteral("name the reports to merge") : Complaint();
    }
    if (line.setting.isEmpty()) return QStringLiteral("name the watermark setting with --setting");
    if (line.inputs.isEmpty()) return QStringLiteral("name the photos or folders to watermark");
    if (line.output.isEmpty() && line.optionsFile.isEmpty()) {
        return QStringLiteral("name the output folder with --output");
    }
    return {};
}

constexpr const char* Introduction = R"(zelto-batch stamps the watermarks of a saved setting onto photos.

Examples:
  zelto-batch --setting Holiday --output out photos
      the photos of a folder, with the saved setting "Holiday"
  zelto-batch -s logo.zcs -o web -f jpg --longest-side 1600 --keep-aspect --rename '[O]_web' *.tif
      smaller JPEG copies under new names, with a setting file
  zelto-batch -s Holiday -o out -r --keep-structure --dry-run ~/Pictures
      what a whole tree of folders would become, without writing anything
  zelto-batch -s Proof -o out -f pdf --combine-pdf photos
      one PDF, a page a photo
  zelto-batch -s Holiday -o /shared/out --shard 2/8 --json /shared/photos
      the third of eight parts of one batch, each on a machine of its own

Usage: zelto-batch [options] [--] PHOTO_OR_FOLDER...

Options:
)";

constexpr const char* Ending = R"(
Exit status: 0 all photos were written; 1 some failed; 2 the command line or a named file
cannot be used and nothing was written; 130 interrupted: the photo in hand is finished first,
and a second interrupt ends the program at once. No file is ever left half-written.
)";

}  // namespace

Result<CommandLine> parseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    for (const Option& option : Options) parser.addOption(qtOption(option));
    // The parser takes the first argument for the program's name.
    if (!parser.parse(QStringList(QStringLiteral("zelto-batch")) + arguments)) {
        return fail(ErrorCode::InvalidValue, parser.errorText());
    }
    CommandLine line;
    line.inputs = parser.positionalArguments();
    for (const Option& option : Options) {
        const QString name = QLatin1String(option.name);
        if (!parser.isSet(name)) continue;
        const QString value = option.valueName != nullptr ? parser.value(name) : QString();
        const Complaint complaint = option.apply(line, value);
        if (!complaint.isNull())
            return fail(ErrorCode::InvalidValue, QStringLiteral("--%1 %2").arg(name, complaint));
    }
    if (line.help || line.version) return line;
    const Complaint complaint = contradiction(line);
    if (!complaint.isNull()) return fail(ErrorCode::InvalidValue, complaint);
    return line;
}

bool asksForJson(const QStringList& arguments) {
    return arguments.contains(QStringLiteral("--json"));
}

QString versionText() {
    const QStringList libraries = pictureLibraries();
    const QString with = libraries.isEmpty() ? QStringLiteral("Without libraries for newer formats")
                                             : QStringLiteral("With ") + libraries.join(QStringLiteral(", "));
    return QStringLiteral("zelto-batch " ZELTO_VERSION "\n") + with + QLatin1Char('\n');
}

QString helpText() {
    QString text = QString::fromUtf8(Introduction);
    constexpr qsizetype DescriptionColumn = 34;
    const QString nextLine = QLatin1Char('\n') + QString(DescriptionColumn, QLatin1Char(' '));
    for (const Option& option : Options) {
        QString names = option.shortName != nullptr
                            ? QStringLiteral("  -%1, ").arg(QLatin1String(option.shortName))
                            : QStringLiteral("      ");
        names += QStringLiteral("--") + QLatin1String(option.name);
        if (option.valueName != nullptr) names += QLatin1Char(' ') + QLatin1String(option.valueName);
        text += names.leftJustified(DescriptionColumn - 1) + QLatin1Char(' ') +
                QString(QLatin1String(option.help)).replace(QLatin1Char('\n'), nextLine) + QLatin1Char('\n');
    }
    return text + QString::fromUtf8(Ending);
}

}  // namespace zelto
