// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_rewriter.h"

#include "pictures/color_transform.h"
#include "pictures/jpeg_compressor.h"
#include "pictures/jpeg_file.h"
#include "pictures/jpeg_huffman.h"
#include "pictures/jpeg_patches.h"
#include "pictures/jpeg_scan.h"
#include "pictures/picture_file.h"
#include "pictures/picture_kind.h"
#include "pictures/resolution.h"
#include "platform/words.h"

#include <QFile>
#include <QPainter>
#include <QPointF>

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

namespace zelto {
namespace {

// Drawn at a time: enough for most marks to be drawn once, few enough for a full-width band to be small beside a photo.
constexpr int BandPixels = 128;
constexpr JDIMENSION AllRows = std::numeric_limits<JDIMENSION>::max();

tl::unexpected<Error> unsuited(const QString& why) {
    return fail(ErrorCode::Unsupported, why);
}

tl::unexpected<Error> unreadable() {
    return fail(ErrorCode::Damaged, Words::tr("The photo's data cannot be taken over as they are."));
}

bool hasPlainColors(const jpeg_decompress_struct& file) {
    return (file.jpeg_color_space == JCS_YCbCr && file.num_components == 3) ||
           (file.jpeg_color_space == JCS_GRAYSCALE && file.num_components == 1);
}

bool hasWholeSampling(const jpeg_decompress_struct& file) {
    return std::all_of(file.comp_info, file.comp_info + file.num_components, [&](const auto& component) {
        return file.max_h_samp_factor % component.h_samp_factor == 0 &&
               file.max_v_samp_factor % component.v_samp_factor == 0;
    });
}

// A quantisation step of 0 makes nothing of what it multiplies, and libjpeg would divide by it.
bool hasPlainSteps(const jpeg_decompress_struct& file) {
    return std::ranges::all_of(file.quant_tbl_ptrs, [](const JQUANT_TBL* table) {
        return table == nullptr || std::ranges::find(table->quantval, 0) == std::end(table->quantval);
    });
}

// Where a side that is reversed does not end with a whole sampling unit, what only fills up the last one would come to
// lie inside the photo. With a single component a block is a unit.
std::optional<QString> turningTrouble(const JpegGeometry& stored, const Turn& turn) {
    const QSize unit = stored.components.size() == 1 ? QSize(DCTSIZE, DCTSIZE) : stored.unit;
    if (turn.reversesX && stored.size.width() % unit.width() != 0)
        return Words::tr(
                   "It cannot be turned without loss: its stored width, %1 pixels, is no multiple of %2.")
            .arg(stored.size.width())
            .arg(unit.width());
    if (turn.reversesY && stored.size.height() % unit.height() != 0)
        return Words::tr(
                   "It cannot be turned without loss: its stored height, %1 pixels, is no multiple of %2.")
            .arg(stored.size.height())
            .arg(unit.height());
    return std::nullopt;
}

bool differs(const QImage& one, const QImage& other, const QRect& area) {
    const QRect inside = area.intersected(one.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const qsizetype at = qsizetype{inside.left()} * 4;
        if (std::memcmp(one.constScanLine(y) + at, other.constScanLine(y) + at,
                        static_cast<std::size_t>(inside.width()) * 4) != 0)
            return true;
    }
    return false;
}

}  // namespace

class JpegRewriter::Work {
  public:
    explicit Work(std::unique_ptr<QIODevice> device) : device_(std::move(device)), file_(*device_) {}

    Result<void> begin();
    Result<QByteArray> rewrite(const std::vector<QRect>& areas, const DrawMarks& draw);

    QSize size() const { return geometry_.size; }
    QPointF dpi() const { return {dpiX_, dpiY_}; }

  private:
    // One part of a band: its pixels before anything is drawn, and where they lie.
    struct Patch {
        QRect units;  // of the picture
        QImage pixels;
    };

    int rowsKept() const;
    void setUp(jpeg_compress_struct& codec);
    void write(jpeg_compress_struct& codec, JpegBlocks& blocks);
    QByteArray encoded();
    QByteArray header();
    QByteArray copied();
    bool prepare(int unitRow);
    bool fill(int rows);
    bool mark(const JpegBand& band);
    bool canBeCoded(int unitRow);
    QRect pixelsIn(const QRect& units) const;
    JBLOCKROW original(std::size_t component, int y) const;
    QImage decoded(const QRect& units);
    QImage drawnOn(const Patch& patch) const;
    bool replace(const Patch& patch, const QImage& drawn);
    void keepOriginals(int unitRow);

    std::unique_ptr<QIODevice> device_;
    JpegFile file_;
    Turn turn_{};
    JpegGeometry stored_;
    JpegGeometry geometry_;  // upright
    double dpiX_ = 0.0;
    double dpiY_ = 0.0;
    QByteArray profile_;
    std::shared_ptr<const ColorTransform> fromSrgb_;  // null for a photo that is sRGB itself
    // The coefficients come and go row by row, unless the file has them in several scans or they have to be turned.
    bool isWhole_ = false;
    bool isCopied_ = false;  // bit by bit, where nothing changes

    const DrawMarks* draw_ = nullptr;
    std::vector<JpegBand> bands_;
    std::size_t nextBand_ = 0;
    int filled_ = 0;    // rows of units whose coefficients have been read
    int prepared_ = 0;  // rows of units that can be written
    std::array<CodeRange, MAX_COMPONENTS> coded_;
    std::unique_ptr<JpegBlocks> storedBlocks_;  // where they have to be turned
    std::unique_ptr<JpegBlocks> blocks_;        // upright
    // The last row of the band before, as it was: what lies beside a pixel takes part in its decoding.
    std::unique_ptr<JpegBlocks> originals_;
    int originalsRow_ = -1;
    std::unique_ptr<JpegScan> scan_;  // where it is copied
    std::vector<bool> needed_;        // rows of units whose coefficients that takes
    std::exception_ptr exception_;    // of `draw` or of memory, on its way around libjpeg
};

Result<void> JpegRewriter::Work::begin() {
    if (pictureKindOf(device_->peek(PictureKindBytes)) != PictureKind::Jpeg)
        return unsuited(Words::tr("The photo is no JPEG."));
    if (!file_.readHeader()) return unreadable();
    const jpeg_decompress_struct& info = file_.info();
    if (!hasPlainColors(info))
        return unsuited(Words::tr("Its colours are stored in another way than as YCbCr or grey."));
    // Hardly any program reads such files, and no code of theirs is checked on its way through libjpeg.
    if (info.arith_code != 0) return unsuited(Words::tr("It is stored in arithmetic codes."));
    if (!hasPlainSteps(info)) return unreadable();
    if (!hasWholeSampling(info)) return unsuited(Words::tr("Its colours are sampled in broken steps."));
    turn_ = turnOf(file_.exif().orientation);
    stored_ = JpegGeometry::of(info);
    geometry_ = stored_.turned(turn_);
    if (const auto trouble = turningTrouble(stored_, turn_)) return unsuited(*trouble);

    isWhole_ = jpeg_has_multiple_scans(&file_.info()) != 0;
    isCopied_ = turn_.isNone() && JpegScan::suits(info, geometry_);
    const qint64 memory = JpegBlocks::bytesFor(geometry_, rowsKept()) + (isCopied_ ? device_->size() : 0) +
                          (turn_.isNone() ? 0 : JpegBlocks::bytesFor(stored_, stored_.units.height()));
    if (const Result<void> allowed = checkNeeds({geometry_.size, memory, 0}, device_->size()); !allowed)
        return tl::unexpected(allowed.error());

    profile_ = file_.colors();
    if (ColorTransform::toSrgb(profile_, SourcePixels::Bgrx8)) {
        fromSrgb_ = ColorTransform::fromSrgb(profile_);
        if (!fromSrgb_)
            return unsuited(Words::tr("Its colour profile does not say how to come to its colours."));
    }
    std::tie(dpiX_, dpiY_) = file_.resolution();
    dpiX_ = intendedDpi(dpiX_);
    dpiY_ = intendedDpi(dpiY_);
    if (turn_.swapsAxes) std::swap(dpiX_, dpiY_);
    return {};
}

// A band, and the row on either side of it.
int JpegRewriter::Work::rowsKept() const {
    const int rows = geometry_.units.height();
    return isWhole_ ? rows : std::min(rows, std::max(1, BandPixels / geometry_.unit.height()) + 2);
}

void JpegRewriter::Work::setUp(jpeg_compress_struct& codec) {
    jpeg_decompress_struct& source = file_.info();
    copyParameters(source, turn_, geometry_, codec);
    setJfifDensity(codec, dpiX_, dpiY_);
    codec.write_Adobe_marker = source.saw_Adobe_marker;
    codec.restart_interval = source.restart_interval;
    codec.optimize_coding = static_cast<boolean>(isWhole_);
    if (source.progressive_mode != 0) {
        jpeg_simple_progression(&codec);
    } else if (!isWhole_) {
        for (int i = 0; i < codec.num_components; ++i) {
            codec.comp_info[i].dc_tbl_no = source.comp_info[i].dc_tbl_no;
            codec.comp_info[i].ac_tbl_no = source.comp_info[i].ac_tbl_no;
        }
        const auto take = [&](JHUFF_TBL* const* from, JHUFF_TBL** to, auto completed) {
            for (std::size_t i = 0; i < NUM_HUFF_TBLS; ++i) {
                if (from[i] == nullptr) continue;
                if (to[i] == nullptr) to[i] = jpeg_alloc_huff_table(reinterpret_cast<j_common_ptr>(&codec));
                *to[i] = completed(*from[i]);
                to[i]->sent_table = FALSE;
            }
        };
        take(source.dc_huff_tbl_ptrs, codec.dc_huff_tbl_ptrs, completedDcTable);
        take(source.ac_huff_tbl_ptrs, codec.ac_huff_tbl_ptrs, completedAcTable);
    }
}

Result<QByteArray> JpegRewriter::Work::rewrite(const std::vector<QRect>& areas, const DrawMarks& draw) {
    draw_ = &draw;
    bands_ = bandsOf(areas, geometry_, std::max(1, BandPixels / geometry_.unit.height()));
    blocks_ = std::make_unique<JpegBlocks>(geometry_, rowsKept());
    originals_ = std::make_unique<JpegBlocks>(geometry_, 1);
    QByteArray file = isCopied_ ? copied() : encoded();
    if (exception_) std::rethrow_exception(exception_);
    if (file.isEmpty()) return unreadable();
    return file;
}

// By way of all coefficients; empty for a damaged file.
QByteArray JpegRewriter::Work::encoded() {
    file_.limitScans();
    if (!turn_.isNone()) storedBlocks_ = std::make_unique<JpegBlocks>(stored_, stored_.units.height());
    JpegBlocks& read = storedBlocks_ ? *storedBlocks_ : *blocks_;
    read.receive(file_.info());
    if (isWhole_ || storedBlocks_) {
        if (!file_.readCoefficients(AllRows)) return {};
        read.finishReading();
        if (!storedBlocks_) filled_ = geometry_.units.height();
    }
    blocks_->prepare = [this](int unitRow) { return prepare(unitRow); };
    JpegCompressor compressor;
    const bool done = compressor.guarded([&](jpeg_compress_struct& codec) { write(codec, *blocks_); });
    return done ? compressor.takeFile() : QByteArray();
}

void JpegRewriter::Work::write(jpeg_compress_struct& codec, JpegBlocks& blocks) {
    setUp(codec);
    jpeg_write_coefficients(&codec, blocks.give(codec));
    if (!profile_.isEmpty()) {
        jpeg_write_icc_profile(&codec, reinterpret_cast<const JOCTET*>(profile_.constData()),
                               static_cast<unsigned>(profile_.size()));
    }
    jpeg_finish_compress(&codec);
}

// The new file up to its scan: libjpeg is stopped when it asks for the first coefficients.
QByteArray JpegRewriter::Work::header() {
    JpegBlocks none(geometry_);
    bool isThere = false;
    none.prepare = [&](int) {
        isThere = true;
        return false;
    };
    JpegCompressor compressor;
    compressor.guarded([&](jpeg_compress_struct& codec) { write(codec, none); });
    return isThere ? compressor.takeBeginning() : QByteArray();
}

// Bit by bit; empty for a damaged file.
QByteArray JpegRewriter::Work::copied() {
    QByteArray file = header();
    if (file.isEmpty()) return {};
    const int rows = geometry_.units.height();
    needed_.resize(static_cast<std::size_t>(rows));
    for (const JpegBand& band : bands_) {
        for (int row = std::max(band.first - 1, 0); row < std::min(band.end + 1, rows); ++row)
            needed_[static_cast<std::size_t>(row)] = true;
    }
    scan_ = std::make_unique<JpegScan>(file_.info(), geometry_, file_.takeRest());
    for (int row = 0; row < rows; ++row) {
        if (!prepare(row) || !scan_->writeRow(*blocks_)) return {};
    }
    return file.append(scan_->takeBits());
}

// Called from within libjpeg, which no exception may pass through.
bool JpegRewriter::Work::prepare(int unitRow) try {
    while (prepared_ <= unitRow) {
        const bool isMarked = nextBand_ < bands_.size() && bands_[nextBand_].first == prepared_;
        const int end = isMarked ? bands_[nextBand_].end : prepared_ + 1;
        if (!fill(std::min(end + 1, geometry_.units.height()))) return false;
        if (isMarked && !mark(bands_[nextBand_++])) return false;
        for (; prepared_ < end; ++prepared_) {
            if (!canBeCoded(prepared_)) return false;
        }
    }
    return true;
} catch (...) {
    exception_ = std::current_exception();
    return false;
}

// Has the first `rows` rows of units read, or turned.
bool JpegRewriter::Work::fill(int rows) {
    if (filled_ >= rows) return true;
    if (scan_) {
        for (; filled_ < rows; ++filled_) {
            if (!scan_->readRow(needed_[static_cast<std::size_t>(filled_)] ? blocks_.get() : nullptr))
                return false;
        }
        return true;
    }
    if (!storedBlocks_) {
        filled_ = rows;
        return file_.readCoefficients(rows == geometry_.units.height() ? AllRows
                                                                       : static_cast<JDIMENSION>(rows));
    }
    for (; filled_ < rows; ++filled_) blocks_->fillTurned(*storedBlocks_, turn_, filled_);
    return true;
}

// Of a file in several scans libjpeg itself tells, and the scan that is copied looks at each number.
bool JpegRewriter::Work::canBeCoded(int unitRow) {
    if (isWhole_ || scan_) return true;
    for (std::size_t i = 0; i < geometry_.components.size(); ++i) {
        const JpegGeometry::Component& component = geometry_.components[i];
        const int width = geometry_.units.width() * component.across;
        for (int y = unitRow * component.down; y < (unitRow + 1) * component.down; ++y) {
            if (!coded_[i].takes(blocks_->row(i, y), width)) return false;
        }
    }
    return true;
}

// All parts are decoded before the first is changed, so that none sees another's marks beside it.
bool JpegRewriter::Work::mark(const JpegBand& band) {
    std::vector<Patch> patches;
    for (const JpegBand::Columns& columns : band.columns) {
        const QRect units(QPoint(columns.first, band.first), QPoint(columns.end - 1, band.end - 1));
        patches.push_back({units, decoded(units)});
        if (patches.back().pixels.isNull()) return false;
    }
    keepOriginals(band.end - 1);
    return std::all_of(patches.begin(), patches.end(), [this](const Patch& patch) {
        const QImage drawn = drawnOn(patch);
        return !differs(patch.pixels, drawn, drawn.rect()) || replace(patch, drawn);
    });
}

QRect JpegRewriter::Work::pixelsIn(const QRect& units) const {
    const QSize unit = geometry_.unit;
    const QRect pixels(units.left() * unit.width(), units.top() * unit.height(), units.width() * unit.width(),
                       units.height() * unit.height());
    return pixels.intersected(QRect(QPoint(0, 0), geometry_.size));
}

JBLOCKROW JpegRewriter::Work::original(std::size_t component, int y) const {
    const bool isKept = y / geometry_.components[component].down == originalsRow_;
    return (isKept ? *originals_ : *blocks_).row(component, y);
}

void JpegRewriter::Work::keepOriginals(int unitRow) {
    for (std::size_t i = 0; i < geometry_.components.size(); ++i) {
        const JpegGeometry::Component& component = geometry_.components[i];
        const auto width = static_cast<std::size_t>(geometry_.units.width() * component.across);
        for (int y = unitRow * component.down; y < (unitRow + 1) * component.down; ++y)
            std::memcpy(originals_->row(i, y), blocks_->row(i, y), width * sizeof(JBLOCK));
    }
    originalsRow_ = unitRow;
}

// The pixels of some units as the whole photo shows them: with the units around them, since chroma that is stored
// smaller is enlarged smoothly.
QImage JpegRewriter::Work::decoded(const QRect& units) {
    const QRect around = units.adjusted(-1, -1, 1, 1).intersected(QRect(QPoint(0, 0), geometry_.units));
    const QRect pixels = pixelsIn(around);
    const JpegGeometry part = geometry_.part(pixels.size());
    JpegBlocks blocks(part);
    for (std::size_t i = 0; i < part.components.size(); ++i) {
        const auto& [across, down, size, covers] = part.components[i];
        for (int y = around.top() * down; y < (around.bottom() + 1) * down; ++y)
            blocks.addRow(i, original(i, y) + around.left() * across);
    }
    const QImage shown = pixelsOf(blocks, part, file_.info(), turn_);
    return shown.isNull() ? shown : converted(shown.copy(pixelsIn(units).translated(-pixels.topLeft())));
}

QImage JpegRewriter::Work::drawnOn(const Patch& patch) const {
    const QPoint corner = pixelsIn(patch.units).topLeft();
    QImage drawn = converted(patch.pixels.copy());
    if (!fromSrgb_) {
        (*draw_)(drawn, corner);
        return drawn;
    }
    QImage marks = newPicture(drawn.size(), QImage::Format_ARGB32_Premultiplied);
    marks.fill(Qt::transparent);
    (*draw_)(marks, corner);
    marks = converted(std::move(marks).convertToFormat(QImage::Format_ARGB32));
    fromSrgb_->apply(marks.bits(), marks.bytesPerLine(), marks);
    QPainter(&drawn).drawImage(0, 0, marks);
    return drawn;
}

bool JpegRewriter::Work::replace(const Patch& patch, const QImage& drawn) {
    const QRect area = pixelsIn(patch.units);
    const JpegGeometry part = geometry_.part(area.size());
    const std::unique_ptr<JpegBlocks> encoded = blocksOf(drawn, part, file_.info(), turn_);
    if (!encoded) return false;
    for (std::size_t i = 0; i < part.components.size(); ++i) {
        const auto& [across, down, blocks, covers] = part.components[i];
        for (int y = 0; y < blocks.height(); ++y) {
            JBLOCKROW target = blocks_->row(i, patch.units.top() * down + y) + patch.units.left() * across;
            for (int x = 0; x < blocks.width(); ++x) {
                const QRect pixels(QPoint(x * covers.width(), y * covers.height()), covers);
                if (!differs(patch.pixels, drawn, pixels)) continue;
                std::memcpy(target + x, encoded->row(i, y) + x, sizeof(JBLOCK));
                if (scan_) scan_->change(patch.units.top() + y / down, patch.units.left() + x / across);
            }
        }
    }
    return true;
}

JpegRewriter::JpegRewriter(std::unique_ptr<Work> work) : work_(std::move(work)) {}

JpegRewriter::~JpegRewriter() = default;

Result<std::unique_ptr<JpegRewriter>> JpegRewriter::open(std::unique_ptr<QIODevice> file) {
    auto work = std::make_unique<Work>(std::move(file));
    if (const Result<void> begun = work->begin(); !begun) return tl::unexpected(begun.error());
    return std::unique_ptr<JpegRewriter>(new JpegRewriter(std::move(work)));
}

Result<std::unique_ptr<JpegRewriter>> JpegRewriter::open(const QString& path) {
    auto file = std::make_unique<QFile>(path);
    if (const Result<void> opened = openPictureFile(*file); !opened) return tl::unexpected(opened.error());
    return open(std::move(file));
}

QSize JpegRewriter::size() const {
    return work_->size();
}

double JpegRewriter::dpiX() const {
    return work_->dpi().x();
}

double JpegRewriter::dpiY() const {
    return work_->dpi().y();
}

Result<QByteArray> JpegRewriter::rewrite(const std::vector<QRect>& areas, const DrawMarks& draw) {
    return work_->rewrite(areas, draw);
}

}  // namespace zelto
