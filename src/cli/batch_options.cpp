// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch_options.h"

#include "options/manual_texts.h"
#include "options/nearest_word.h"
#include "pictures/picture_writer.h"
#include "platform/words.h"

#include <QRegularExpression>

#include <array>
#include <limits>

namespace zelto {
namespace {

QString dashed(const OptionText& option) {
    return QStringLiteral("--") + QLatin1String(option.name);
}

// The place of `word` among the option's words; the complaint is null where it is one of them.
Complaint findWord(const OptionText& option, const QString& word, std::size_t& place) {
    const QStringList words = QString(QLatin1String(option.words)).split(QLatin1Char(' '));
    if (const qsizetype found = words.indexOf(word); found >= 0) {
        place = static_cast<std::size_t>(found);
        return {};
    }
    const QString known = words.join(QStringLiteral(", "));
    const QString meant = nearestWord(word, words);
    return meant.isEmpty() ? Words::tr("%1 takes one of %2, not “%3”").arg(dashed(option), known, word)
                           : Words::tr("%1 takes one of %2, not “%3”; did you mean “%4”?")
                                 .arg(dashed(option), known, word, meant);
}

// `values` stand in the order of the option's words.
template <class Value, std::size_t Count, class Chosen>
Complaint choose(const OptionText& option, const QString& word, const std::array<Value, Count>& values,
                 Chosen& chosen) {
    std::size_t place = 0;
    const Complaint complaint = findWord(option, word, place);
    if (complaint.isNull()) chosen = values.at(place);
    return complaint;
}

constexpr int Unbounded = std::numeric_limits<int>::max();

// A whole number from `least` to `most`.
Complaint number(const OptionText& option, const QString& text, int least, int most, int& value) {
    bool ok = false;
    const int parsed = text.toInt(&ok);
    if (ok && parsed >= least && parsed <= most) {
        value = parsed;
        return {};
    }
    const QString from = QString::number(least);
    return most == Unbounded
               ? Words::tr("%1 takes a whole number from %2 on, not “%3”").arg(dashed(option), from, text)
               : Words::tr("%1 takes a whole number from %2 to %3, not “%4”")
                     .arg(dashed(option), from, QString::number(most), text);
}

Complaint resize(CommandLine& line, const OptionText& option, const ResizeChoice& choice) {
    if (line.resize && line.resize->type != choice.type)
        return Words::tr("%1 cannot be given together with another way to resize").arg(dashed(option));
    line.resize = choice;
    return {};
}

template <std::int64_t Type>
Complaint resizeBoth(CommandLine& line, const OptionText& option, const QString& value) {
    static const QRegularExpression form(QStringLiteral("^(\\d{1,9})[x×](\\d{1,9})$"));
    const QRegularExpressionMatch match = form.match(value);
    if (!match.hasMatch()) {
        return Words::tr("%1 takes WIDTHxHEIGHT in whole numbers from 0 on, such as 800x600, not “%2”")
            .arg(dashed(option), value);
    }
    return resize(line, option, {Type, match.captured(1).toLongLong(), match.captured(2).toLongLong()});
}

Complaint applyLongestSide(CommandLine& line, const OptionText& option, const QString& value) {
    int side = 0;
    const Complaint complaint = number(option, value, 0, Unbounded, side);
    return complaint.isNull() ? resize(line, option, {resize_type::LongerSide, side, 0}) : complaint;
}

Complaint applyFormat(CommandLine& line, const OptionText& option, const QString& value) {
    std::size_t place = 0;
    const Complaint complaint = findWord(option, value, place);
    if (!complaint.isNull()) return complaint;
    if (place == 0) {
        line.format = SameAsSourceFormat;
    } else if (pictureFormatForExtension(value)) {
        line.format = value;
    } else {
        return Words::tr(
                   "%1 cannot be %2: this machine has no encoder for it; zelto-batch --doctor tells "
                   "which formats it can write")
            .arg(dashed(option), value);
    }
    return {};
}

Complaint applyMetadata(CommandLine& line, const OptionText& option, const QString& value) {
    return choose(option, value,
                  std::array{exif_data::IncludeAll, exif_data::CopyrightOnly, exif_data::ExcludeGeolocation,
                             exif_data::ExcludeAll},
                  line.metadata);
}

Complaint applyExtensions(CommandLine& line, const OptionText& option, const QString& value) {
    static constexpr std::array formats = {
        &ScanFormats::Jpeg, &ScanFormats::Png,  &ScanFormats::Tiff, &ScanFormats::Gif, &ScanFormats::Bmp,
        &ScanFormats::Heic, &ScanFormats::Avif, &ScanFormats::Webp, &ScanFormats::Jxl, &ScanFormats::Raw};
    line.extensions = {false, false, false, false, false};
    for (const QString& word : value.split(QLatin1Char(','))) {
        bool ScanFormats::*ticked = nullptr;
        const Complaint complaint = choose(option, word.trimmed(), formats, ticked);
        if (!complaint.isNull()) return complaint;
        line.extensions.*ticked = true;
    }
    return {};
}

Complaint applyShard(CommandLine& line, const OptionText& option, const QString& value) {
    const Result<Shard> shard =
        parseShard(value, [](const char* name) { return qEnvironmentVariable(name); });
    if (!shard) return dashed(option) + QLatin1Char(' ') + shard.error().message;
    line.shard = *shard;
    return {};
}

Complaint applyRepeatedFailure(CommandLine& line, const OptionText& option, const QString& value) {
    return choose(option, value, std::array{false, true}, line.continueAfterFailures);
}

template <auto Rule>
Complaint applyNameRule(CommandLine& line, const OptionText& option, const QString& value) {
    return choose(option, value,
                  std::array{NameRule::Replace, NameRule::Number, NameRule::Skip, NameRule::Fail},
                  line.*Rule);
}

// A text that must not be empty.
template <auto Field>
Complaint text(CommandLine& line, const OptionText& option, const QString& value) {
    line.*Field = value;
    return value.isEmpty() ? Words::tr("%1 needs a value").arg(dashed(option)) : Complaint();
}

template <auto Switch, bool State = true>
Complaint turn(CommandLine& line, const OptionText&, const QString&) {
    line.*Switch = State;
    return {};
}

template <auto Field, int Least, int Most>
Complaint wholeNumber(CommandLine& line, const OptionText& option, const QString& value) {
    return number(option, value, Least, Most, (line.*Field).emplace());
}

// Help and version come before everything else that is asked for.
template <Task Wanted>
Complaint beginTask(CommandLine& line, const OptionText& option, const QString& value) {
    if (line.task == Task::Help || line.task == Task::Version) return {};
    const bool comesFirst = Wanted == Task::Help || Wanted == Task::Version;
    if (line.task != Task::Run && !comesFirst) {
        return Words::tr("%1 and another option that only tells or prints something cannot be given together")
            .arg(dashed(option));
    }
    line.task = Wanted;
    line.taskArgument = value;
    return option.value != nullptr && value.isEmpty() ? Words::tr("%1 needs a value").arg(dashed(option))
                                                      : Complaint();
}

Complaint applyGenerate(CommandLine& line, const OptionText& option, const QString& value) {
    std::size_t place = 0;
    const Complaint complaint = findWord(option, value, place);
    return complaint.isNull() ? beginTask<Task::Generate>(line, option, value) : complaint;
}

constexpr auto Switch = OptionValue::None;
constexpr auto Text = OptionValue::Text;
constexpr auto Word = OptionValue::Word;
constexpr const char* NameRuleWords = "replace number skip fail";

}  // namespace

const std::vector<BatchOptionGroup>& batchOptions() {
    static const std::vector<BatchOptionGroup> groups = {
        {QT_TRANSLATE_NOOP("Words", "What to do"),
         {{{"s", "setting", OptionValue::Setting, "NAME_OR_FILE", nullptr,
            QT_TRANSLATE_NOOP("Words", "a saved setting's name, or the path of a .zcs file (needed)")},
           text<&CommandLine::setting>},
          {{"o", "output", OptionValue::Folder, "DIR", nullptr,
            QT_TRANSLATE_NOOP("Words",
                              "output folder, made when missing (needed, unless --options names one)")},
           text<&CommandLine::output>},
          {{nullptr, "options", OptionValue::File, "FILE", "xml",
            QT_TRANSLATE_NOOP(
                "Words",
                "start from an OutputSettings.xml, as --print-options makes one; the other options override "
                "it")},
           text<&CommandLine::optionsFile>},
          {{nullptr, "dry-run", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "print what would be written, and write nothing")},
           turn<&CommandLine::dryRun>},
          {{nullptr, "watch", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "go on until interrupted: photos that arrive in the named folders are written at once")},
           turn<&CommandLine::watch>}}},
        {QT_TRANSLATE_NOOP("Words", "Format and size"),
         {{{"f", "format", Word, "FORMAT", "same jpg png tiff bmp gif pdf webp avif jxl heic",
            QT_TRANSLATE_NOOP(
                "Words", "same, jpg, png, tiff, bmp, gif, pdf, webp, avif, jxl or heic (default: same)")},
           applyFormat},
          {{"q", "quality", Text, "0..100", nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "quality of JPEG, WebP, AVIF, JPEG XL and HEIC (default: 90); at 100 WebP, JPEG XL and, "
                "where "
                "its encoder can, AVIF are lossless")},
           wholeNumber<&CommandLine::quality, 0, 100>},
          {{nullptr, "jpeg-lossless", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "JPEG to JPEG: only the blocks that a watermark touches are encoded again, with the photo's "
                "own "
                "quality and chroma (on halved chroma colored edges of marks are softer); photos it cannot "
                "be "
                "done for are encoded as usual, and the report says why")},
           turn<&CommandLine::jpegLossless>},
          {{nullptr, "resize-percent", Text, "WxH", nullptr,
            QT_TRANSLATE_NOOP("Words", "resize each side by its percentage")},
           resizeBoth<resize_type::Percentage>},
          {{nullptr, "resize-pixels", Text, "WxH", nullptr,
            QT_TRANSLATE_NOOP("Words",
                              "resize to a width and height in pixels, 0 for one that is not given")},
           resizeBoth<resize_type::Pixels>},
          {{nullptr, "longest-side", Text, "N", nullptr,
            QT_TRANSLATE_NOOP("Words", "resize the longer side to N pixels")},
           applyLongestSide},
          {{nullptr, "keep-aspect", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "keep proportions when resizing")},
           turn<&CommandLine::keepAspect>},
          {{nullptr, "no-enlarge", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "never make a photo larger")},
           turn<&CommandLine::noEnlarge>},
          {{nullptr, "combine-pdf", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "all photos into one PDF (with --format pdf)")},
           turn<&CommandLine::combinePdf>}}},
        {QT_TRANSLATE_NOOP("Words", "Names and folders"),
         {{{nullptr, "rename", Text, "PATTERN", nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "output name: [O] original name, [#] to [####] number in the list, [D] today as MMDDYYYY, "
                "[DD] "
                "as DDMMYYYY, and the macros of texts, as in "
                "'<<EXIF:DateTimeOriginal[Y-M-D]>>_[###]'")},
           text<&CommandLine::rename>},
          {{nullptr, "keep-structure", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "mirror the source folders in the output folder")},
           turn<&CommandLine::keepStructure>},
          {{nullptr, "same-name", Word, "WHAT", NameRuleWords,
            QT_TRANSLATE_NOOP(
                "Words",
                "photos of the run with the same output: replace (with a warning), number, skip or fail "
                "(default: replace)")},
           applyNameRule<&CommandLine::sameName>},
          {{nullptr, "existing", Word, "WHAT", NameRuleWords,
            QT_TRANSLATE_NOOP(
                "Words",
                "outputs that stand there before the run: replace, number, skip or fail (default: replace)")},
           applyNameRule<&CommandLine::existing>},
          {{nullptr, "overwrite-originals", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "allow outputs that replace photos of the list")},
           turn<&CommandLine::overwriteOriginals>}}},
        {QT_TRANSLATE_NOOP("Words", "Metadata"),
         {{{nullptr, "metadata", Word, "WHAT", "all copyright no-gps none",
            QT_TRANSLATE_NOOP(
                "Words",
                "all, copyright, no-gps (positions go, names of places stay) or none (default: all)")},
           applyMetadata},
          {{nullptr, "copyright", OptionValue::File, "FILE", "xml",
            QT_TRANSLATE_NOOP(
                "Words",
                "a Copyright.xml to write into the outputs (default: your own, if the setting asks for it)")},
           text<&CommandLine::copyrightFile>}}},
        {QT_TRANSLATE_NOOP("Words", "Which photos"),
         {{{"r", "recursive", Switch, nullptr, nullptr, QT_TRANSLATE_NOOP("Words", "scan sub-folders too")},
           turn<&CommandLine::recursive>},
          {{nullptr, "extensions", OptionValue::Words, "LIST", "jpeg png tiff gif bmp heic avif webp jxl raw",
            QT_TRANSLATE_NOOP("Words",
                              "what a folder scan takes, of jpeg,png,tiff,gif,bmp (default: these) and "
                              "heic,avif,webp,jxl,raw")},
           applyExtensions},
          {{nullptr, "shard", Text, "I/N", nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "only every Nth photo of the list, from I on (0-based); auto, auto/N: as a Slurm array or a "
                "Kubernetes Job has it")},
           applyShard}}},
        {QT_TRANSLATE_NOOP("Words", "The run"),
         {{{"j", "jobs", Text, "N", nullptr,
            QT_TRANSLATE_NOOP("Words", "photos worked on at a time (default: the number of cores)")},
           wholeNumber<&CommandLine::jobs, 1, Unbounded>},
          {{nullptr, "on-repeated-failure", Word, "WHAT", "stop continue",
            QT_TRANSLATE_NOOP(
                "Words",
                "stop or continue after 3 failures in a row (default: stop, with --watch: continue)")},
           applyRepeatedFailure},
          {{nullptr, "strict", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "a photo with a warning fails and is not written")},
           turn<&CommandLine::strict>}}},
        {QT_TRANSLATE_NOOP("Words", "What is printed"),
         {{{nullptr, "json", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "report as JSON on standard output; with --watch a line a photo")},
           turn<&CommandLine::json>},
          {{nullptr, "quiet", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "print nothing but errors")},
           turn<&CommandLine::quiet>},
          {{nullptr, "no-color", Switch, nullptr, nullptr, QT_TRANSLATE_NOOP("Words", "no colors")},
           turn<&CommandLine::color, false>},
          {{nullptr, "no-progress", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "plain lines instead of a progress bar")},
           turn<&CommandLine::progress, false>}}},
        {QT_TRANSLATE_NOOP("Words", "Instead of a run"),
         {{{nullptr, "list-settings", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "the names of the saved settings")},
           beginTask<Task::ListSettings>},
          {{nullptr, "list-fonts", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP("Words", "the fonts that texts can be set in")},
           beginTask<Task::ListFonts>},

          {{nullptr, "print-setting", OptionValue::Setting, "NAME_OR_FILE", nullptr,
            QT_TRANSLATE_NOOP("Words", "what a setting holds, layer by layer, in words")},
           beginTask<Task::PrintSetting>},
          {{nullptr, "print-options", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "an options file that says what the other options on the line say, to be kept for "
                "--options")},
           beginTask<Task::PrintOptions>},

          {{nullptr, "doctor", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "whether all is there that a run needs: exiftool, formats, fonts, folders, room, memory; "
                "exit "
                "status 1 when something is missing")},
           beginTask<Task::Doctor>},
          {{nullptr, "merge-reports", Switch, nullptr, nullptr,
            QT_TRANSLATE_NOOP(
                "Words",
                "the arguments are JSON reports of the shards of one list: print one report, and exit as "
                "one run "
                "would")},
           beginTask<Task::MergeReports>},
          {{nullptr, "generate", Word, "WHAT", GeneratedKinds,
            QT_TRANSLATE_NOOP(
                "Words",
                "the manual page (man), the completion for bash, zsh or fish, or all options in markdown")},
           applyGenerate},
          {{"h", "help", Switch, nullptr, nullptr, QT_TRANSLATE_NOOP("Words", "this help")},
           beginTask<Task::Help>},
          {{nullptr, "version", Switch, nullptr, nullptr, QT_TRANSLATE_NOOP("Words", "the version")},
           beginTask<Task::Version>}}}};
    return groups;
}

}  // namespace zelto
