// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_plan.h"

#include "batch/batch_request.h"
#include "batch/output_name.h"
#include "platform/file_identity.h"
#include "platform/path_parts.h"
#include "platform/words.h"

#include <QHash>
#include <QSet>

namespace zelto {
namespace {

// Gives out the outputs photo by photo, in list order.
class Planner {
  public:
    Planner(const BatchRequest& request, const QDateTime& now)
        : request_(request), now_(now), destinations_(runDestinations(request)) {
        plan_.outputs.resize(request.photos.size());
    }

    OutputPlan plan() {
        unruled_.resize(request_.photos.size());
        for (std::size_t row = 0; row < request_.photos.size(); ++row) {
            if (!isNamed(row)) continue;
            if (takesNamesFromPhotos(request_.options)) takeName(row);
            unruled_[row] = fileIdentity(path(row));
            wanted_.insert(name(row));
        }
        for (std::size_t row = 0; row < request_.photos.size(); ++row) {
            if (isNamed(row)) decide(row);
        }
        for (const BatchPhoto& photo : request_.photos) {
            if (written_.contains(fileIdentity(photo.path))) plan_.replacedPhotos.append(photo.path);
        }
        plan_.files = writtenNames_.size();
        return std::move(plan_);
    }

  private:
    bool isNamed(std::size_t row) const {
        return request_.photos[row].checked || request_.photos[row].isElsewhere;
    }

    void takeName(std::size_t row) {
        const NamedPhoto photo{request_.photos[row].path, request_.firstRow + static_cast<qint64>(row),
                               now_.date()};
        const QString& pattern = request_.options.RenameFormat;
        plan_.outputs[row].name = nameFromPhoto(
            photo, request_.options, renameContext(pattern, photo.path, photo.row, now_, request_.locale));
    }

    const QByteArray& name(std::size_t row) const { return unruled_[row].place; }

    QString path(std::size_t row) const {
        return photoTask(request_, destinations_, plan_.outputs[row], row, now_).output;
    }

    void decide(std::size_t row) {
        PlannedOutput& output = plan_.outputs[row];
        const auto first = firstWith_.constFind(name(row));
        if (first == firstWith_.cend()) {
            firstWith_.insert(name(row), row);
            const QString earlier = earlierPhoto(name(row));
            if (earlier.isEmpty()) {
                meetExisting(row);
            } else if (earlier != request_.photos[row].path) {
                shareWithEarlier(row);
            }
        } else {
            share(row, *first);
            if (output.fate == PlannedOutput::Fate::Write && !output.sharesNameOf) meetExisting(row);
        }
        if (output.fate != PlannedOutput::Fate::Write || !request_.photos[row].checked) return;
        ++plan_.photos;
        const FileIdentity written = output.number == 0 ? unruled_[row] : fileIdentity(path(row));
        written_.insert(written);
        writtenNames_.insert(written.place);
    }

    void share(std::size_t row, std::size_t first) {
        PlannedOutput& output = plan_.outputs[row];
        if (!toldAsShared_.contains(name(row))) plan_.sharedNames.append(path(row));
        toldAsShared_.insert(name(row));
        if (request_.names.sameName == NameRule::Replace) {
            // Whatever became of the first one's name holds for this one.
            output = {plan_.outputs[first].fate, plan_.outputs[first].reason, output.name,
                      plan_.outputs[first].number, first};
        } else {
            resolve(row, request_.names.sameName, sharedName(row));
        }
    }

    QString earlierPhoto(const QByteArray& place) const {
        return request_.earlier ? request_.earlier->photoAt(place) : QString();
    }

    // What stands there is the run's own, so the rule for names it shares holds.
    void shareWithEarlier(std::size_t row) {
        const NameRule rule = request_.names.sameName;
        plan_.outputs[row].replacesEarlier = rule == NameRule::Replace;
        resolve(row, rule, sharedName(row));
    }

    QString sharedName(std::size_t row) const {
        return Words::tr("an earlier photo of the run has the output “%1”").arg(path(row));
    }

    void meetExisting(std::size_t row) {
        const QString wanted = path(row);
        if (!isTaken(wanted)) return;
        if (request_.photos[row].checked) plan_.existing.append(wanted);
        resolve(row, request_.names.existing, Words::tr("“%1” exists already").arg(wanted));
    }

    // What the rule makes of an output whose name is taken. `reason` says by what, for those that are not written.
    void resolve(std::size_t row, NameRule rule, const QString& reason) {
        PlannedOutput& output = plan_.outputs[row];
        switch (rule) {
            case NameRule::Replace:
                break;
            case NameRule::Number:
                number(row);
                break;
            case NameRule::Skip:
                output.fate = PlannedOutput::Fate::Skip;
                output.reason = Words::tr("Left out: %1.").arg(reason);
                break;
            case NameRule::Fail:
                output.fate = PlannedOutput::Fate::Fail;
                output.reason = Words::tr("Not written: %1.").arg(reason);
                break;
        }
    }

    // Takes the first number that is free, or that this very photo had before. No number below the last one tried for a
    // name ever becomes free.
    void number(std::size_t row) {
        const bool avoidsFiles = request_.names.existing == NameRule::Number;
        qint64& number = numbers_[name(row)];
        QByteArray numbered;
        bool isFree = false;
        while (!isFree) {
            plan_.outputs[row].number = ++number;
            const QString candidate = path(row);
            numbered = fileIdentity(candidate).place;
            const QString earlier = earlierPhoto(numbered);
            const bool isOwn = earlier == request_.photos[row].path;
            const bool isOthers = !isOwn && (!earlier.isEmpty() || (avoidsFiles && isTaken(candidate)));
            isFree = !isOthers && !wanted_.contains(numbered) && !given_.contains(numbered);
        }
        given_.insert(numbered);
    }

    const BatchRequest& request_;
    const QDateTime now_;
    const RunDestinations destinations_;
    OutputPlan plan_;
    std::vector<FileIdentity> unruled_;  // of each photo's output, as it would be without the rules
    FileSet written_;                    // by this run
    // Names are places of files: two spellings of one path are one name.
    QSet<QByteArray> wanted_;  // those without the rules
    QSet<QByteArray> given_;   // those with a number
    QSet<QByteArray> writtenNames_;
    QSet<QByteArray> toldAsShared_;
    QHash<QByteArray, std::size_t> firstWith_;  // the first photo that wants a name
    QHash<QByteArray, qint64> numbers_;         // the last number tried for a name
};

}  // namespace

PhotoWarning sameNameWarning() {
    return {-1, QStringLiteral("same-name"),
            Words::tr("The output takes the place of an earlier photo's of the same name.")};
}

OutputPlan planOutputs(const BatchRequest& request, const QDateTime& now) {
    if (combinesIntoOnePdf(request.options)) {
        OutputPlan plan;
        plan.outputs.resize(request.photos.size());
        return plan;
    }
    return Planner(request, now).plan();
}

}  // namespace zelto
