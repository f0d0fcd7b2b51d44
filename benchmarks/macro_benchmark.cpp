// SPDX-License-Identifier: GPL-3.0-or-later
// What the texts of one photo cost: expanding macros, and reading the metadata some of them print.
#include "macros/macro_expander.h"
#include "metadata/image_properties.h"
#include "support/exiftool.h"
#include "support/test_pictures.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

MacroContext photoContext() {
    return {.photoPath = u"/home/someone/Pictures/2024/05 Garden/IMG_20240503_094107.jpg"_s,
            .pixelSize = {6000, 4000},
            .dpiX = 300,
            .dpiY = 300,
            .row = 41,
            .listSize = 500,
            .batchRunning = true,
            .now = QDateTime({2024, 5, 3}, {9, 41, 7}),
            .locale = QLocale(u"en_US"_s)};
}

void TenMacros(benchmark::State& state) {
    const MacroContext context = photoContext();
    const QString text =
        u"<<AUTO:###1+1>> <<IMGNAME>> <<IMGNAMEEXT>> <<FOLDER>> <<FULLPATH>> <<PHOTOWIDTH>>x<<PHOTOHEIGHT>> "
        u"<<PHOTODPIX>> <<TODAYDATE>> <<TODAYDATE[DD, D MM Y H:N:S]>>"_s;
    for (auto _ : state) benchmark::DoNotOptimize(ParseMacros(text, context));
}
BENCHMARK(TenMacros)->Unit(benchmark::kMicrosecond);

void HugeTextOfDistinctMacros(benchmark::State& state) {
    const MacroContext context = photoContext();
    QString text;
    for (int i = 0; text.size() < 100'000; ++i) text += u"<<TODAYDATE[Y%1]>>"_s.arg(i);
    for (auto _ : state) benchmark::DoNotOptimize(ParseMacros(text, context));
}
BENCHMARK(HugeTextOfDistinctMacros)->Unit(benchmark::kMillisecond);

// A photo with the tags a camera and a photo editor leave, read anew each time and printed by four macros.
class PhotoFile {
  public:
    PhotoFile() {
        QFile file(path());
        ready_ = file.open(QIODevice::WriteOnly) && file.write(jpegBytes(drawnScene({2000, 1500}))) > 0;
        file.close();
        ready_ = ready_ && writeTags({u"-ExposureTime=1/250"_s, u"-FNumber=2.8"_s, u"-ISO=200"_s,
                                      u"-DateTimeOriginal=2014:05:03 09:41:07"_s, u"-IPTC:City=Bern"_s,
                                      u"-IPTC:Keywords=one"_s, u"-XMP:Rating=4"_s, u"-XMP:Subject=one"_s,
                                      u"-XMP-iptcCore:CreatorCity=Bern"_s},
                                     {path()});
    }

    bool ready() const { return ready_; }
    QString path() const { return folder_.filePath(u"photo.jpg"_s); }

  private:
    QTemporaryDir folder_;
    bool ready_ = false;
};

void ReadingProperties(benchmark::State& state) {
    const PhotoFile photo;
    if (!photo.ready()) return state.SkipWithError("no photo with metadata: is exiftool installed?");
    for (auto _ : state) benchmark::DoNotOptimize(readImageProperties(photo.path()));
}
BENCHMARK(ReadingProperties)->Unit(benchmark::kMicrosecond);

void FourMetadataMacros(benchmark::State& state) {
    const PhotoFile photo;
    if (!photo.ready()) return state.SkipWithError("no photo with metadata: is exiftool installed?");
    MacroContext context = photoContext();
    context.properties = std::make_shared<LazyImageProperties>(photo.path());
    const QString text =
        u"<<EXIF:ExposureTime>> f/<<EXIF:FNumber>> <<EXIF:DateTimeOriginal[D.M.Y]>> <<IPTC:City>>"_s;
    for (auto _ : state) benchmark::DoNotOptimize(ParseMacros(text, context));
}
BENCHMARK(FourMetadataMacros)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zelto
