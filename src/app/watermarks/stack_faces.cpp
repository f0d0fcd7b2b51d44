// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/stack_faces.h"

#include "app/watermarks/watermark_controller.h"
#include "render/mark_portrait.h"

#include <QPointer>

#include <utility>

namespace zelto {

// Lives on the thread of the jobs, with what it drew last.
class StackFaces::Painter {
  public:
    Painter(StackFaces* owner, int side) : owner_(owner), side_(side) {}

    void paint(const Job& job) {
        std::vector<Drawn> drawn;
        std::vector<MarkFace> faces;
        for (const Watermark& record : job.stack->Watermarks) {
            drawn.push_back({likenessOf(record), faceOf(record, job.photo)});
            faces.push_back(drawn.back().face);
        }
        drawn_ = std::move(drawn);
        QMetaObject::invokeMethod(
            owner_,
            [owner = owner_, stack = job.stack, faces = std::move(faces)] {
                if (stack == owner->watermarks_.document().snapshot())
                    owner->watermarks_.model().setFaces(faces);
            },
            Qt::QueuedConnection);
    }

  private:
    struct Drawn {
        Watermark record;
        MarkFace face;
    };

    MarkFace faceOf(const Watermark& record, const std::optional<MacroContext>& photo) {
        const bool hasText = record.Type == watermark_type::Text || record.Type == watermark_type::QrCode;
        const QString text = !hasText ? QString()
                             : photo  ? ParseMacros(record.Text, *photo).text
                                      : record.Text;
        const Watermark wanted = likenessOf(record);
        for (const Drawn& each : drawn_) {
            if (each.face.text == text && each.record == wanted) return each.face;
        }
        return {markPortrait(record, text, side_, logos_), text};
    }

    StackFaces* owner_;
    int side_;
    LogoCache logos_{qint64{64} << 20};
    std::vector<Drawn> drawn_;
};

StackFaces::StackFaces(WatermarkController& watermarks, int side, QObject* parent)
    : QObject(parent),
      watermarks_(watermarks),
      painter_(std::make_unique<Painter>(this, side)),
      jobs_(std::make_unique<NewestWorker<Job>>([this](const Job& job) { painter_->paint(job); })) {
    connect(&watermarks_.document(), &WatermarkDocument::changed, this, &StackFaces::post);
    post();
}

StackFaces::~StackFaces() {
    jobs_.reset();
}

void StackFaces::setPhoto(const std::optional<MacroContext>& photo) {
    const auto isSame = [](const MacroContext& a, const MacroContext& b) {
        return a.photoPath == b.photoPath && a.pixelSize == b.pixelSize && a.row == b.row &&
               a.listSize == b.listSize && a.properties == b.properties;
    };
    if (photo.has_value() == photo_.has_value() && (!photo || isSame(*photo, *photo_))) return;
    photo_ = photo;
    post();
}

void StackFaces::post() {
    jobs_->post({watermarks_.document().snapshot(), photo_});
}

}  // namespace zelto
