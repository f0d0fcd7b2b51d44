// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_document.h"

#include "support/testing.h"

#include <functional>

namespace zelto {
namespace {

Watermark text(const QString& content) {
    Watermark watermark(watermark_type::Text);
    watermark.Text = content;
    return watermark;
}

StackState stateOf(const QStringList& texts) {
    StackState state;
    for (const QString& each : texts) state.Stack.Watermarks.push_back(text(each));
    return state;
}

// Makes `state` the start of a history.
void begin(WatermarkDocument& document, const StackState& state) {
    document.change(QStringLiteral("Begin"), [&](StackState& now) { now = state; });
    document.history().clear();
}

QStringList textsOf(const WatermarkDocument& document) {
    QStringList texts;
    for (const Watermark& watermark : document.watermarks()) texts.append(watermark.Text);
    return texts;
}

void type(WatermarkDocument& document, const QString& content, const QString& step) {
    document.change(
        QStringLiteral("Edit Text"),
        [&](StackState& state) { state.Stack.Watermarks.front().Text = content; }, step);
}

TEST(WatermarkDocument, ADifferenceNamesWhatChangedAndNothingElse) {
    const StackState start = stateOf({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    struct Row {
        const char* what;
        std::function<void(StackState&)> mutate;
        StackChange expected;
    };
    const Row rows[] = {
        {"nothing", [](StackState&) {}, {}},
        {"one record", [](StackState& s) { s.Stack.Watermarks[1].Rotation = 5; }, {.records = {1}}},
        {"two records exchanged",
         [](StackState& s) { std::swap(s.Stack.Watermarks[0], s.Stack.Watermarks[2]); },
         {.records = {0, 2}}},
        {"a record removed", [](StackState& s) { s.Stack.Watermarks.pop_back(); }, {.list = true}},
        {"the filter", [](StackState& s) { s.Stack.SelectedFilter = 3; }, {.filter = true}},
        {"a filter row", [](StackState& s) { s.Stack.Off.SelectedFilter = 3; }, {.filter = true}},
        {"the frame", [](StackState& s) { s.Stack.Effects = PhotoEffects(); }, {.effects = true}},
        {"the copyright", [](StackState& s) { s.Metadata = CopyRightMetaData(); }, {.metadata = true}},
    };
    for (const Row& row : rows) {
        StackState after = start;
        row.mutate(after);
        EXPECT_EQ(changeBetween(start, after), row.expected) << row.what;
        EXPECT_EQ(changeBetween(after, start), row.expected) << row.what << ", undone";
    }
}

TEST(WatermarkDocument, EveryChangeIsUndoneAndRedoneAndAnnounced) {
    WatermarkDocument document;
    std::vector<StackChange> announced;
    QObject::connect(&document, &WatermarkDocument::changed,
                     [&](const StackChange& change) { announced.push_back(change); });
    document.change(QStringLiteral("Add"), [](StackState& s) { s.Stack.Watermarks.push_back(text({})); });
    document.change(QStringLiteral("Frame"), [](StackState& s) { s.Stack.Effects = PhotoEffects(); });
    const StackState end = document.state();
    EXPECT_EQ(document.history().undoText(), QStringLiteral("Frame"));

    document.history().undo();
    document.history().undo();
    EXPECT_EQ(document.state(), StackState());
    document.history().redo();
    document.history().redo();
    EXPECT_EQ(document.state(), end);

    const StackChange list{.list = true};
    const StackChange effects{.effects = true};
    EXPECT_THAT(announced, ElementsAre(list, effects, effects, list, list, effects));
}

TEST(WatermarkDocument, TypingIsOneStepUntilAnotherControlIsUsed) {
    WatermarkDocument document;
    begin(document, stateOf({QStringLiteral("a")}));
    const QString typing = QStringLiteral("1/Text");
    for (const char* content : {"ab", "abc", "abcd"}) type(document, QLatin1String(content), typing);
    document.change(
        QStringLiteral("Turn"), [](StackState& s) { s.Stack.Watermarks.front().Rotation = 90; },
        QStringLiteral("1/Rotation"));
    type(document, QStringLiteral("abcde"), typing);
    EXPECT_EQ(document.history().count(), 3);
    document.history().undo();
    document.history().undo();
    EXPECT_EQ(textsOf(document), QStringList(QStringLiteral("abcd")));
    document.history().undo();
    EXPECT_EQ(textsOf(document), QStringList(QStringLiteral("a")));
}

TEST(WatermarkDocument, WhatEndsWhereItBeganLeavesNoStep) {
    WatermarkDocument document;
    begin(document, stateOf({QStringLiteral("a")}));
    EXPECT_FALSE(document.change(QStringLiteral("Nothing"), [](StackState&) {}));
    type(document, QStringLiteral("ab"), QStringLiteral("1/Text"));
    type(document, QStringLiteral("a"), QStringLiteral("1/Text"));
    EXPECT_EQ(document.history().count(), 0);
}

TEST(WatermarkDocument, ASnapshotNeverChanges) {
    WatermarkDocument document;
    begin(document, stateOf({QStringLiteral("a")}));
    const auto before = document.snapshot();
    EXPECT_EQ(document.snapshot(), before) << "an unchanged stack is shared";
    type(document, QStringLiteral("b"), {});
    EXPECT_EQ(before->Watermarks.front().Text, QStringLiteral("a"));
    EXPECT_EQ(document.snapshot()->Watermarks.front().Text, QStringLiteral("b"));
}

TEST(WatermarkDocument, CopyrightIsSwitchedOnInTheStackOnlyWhileThereIsSome) {
    WatermarkDocument document;
    const auto set = [&](std::optional<bool> enabled) {
        document.change(QStringLiteral("Copyright"), [&](StackState& s) {
            s.Metadata.reset();
            if (enabled) s.Metadata.emplace().Enabled = *enabled;
        });
        return document.state().Stack.Metadata;
    };
    EXPECT_TRUE(set(true));
    EXPECT_FALSE(set(false));
    EXPECT_TRUE(set(true));
    EXPECT_FALSE(set(std::nullopt));
}

TEST(WatermarkDocument, AnAmendmentIsAnnouncedButNoStep) {
    WatermarkDocument document;
    begin(document, stateOf({QStringLiteral("a"), QStringLiteral("b")}));
    std::vector<StackChange> announced;
    QObject::connect(&document, &WatermarkDocument::changed,
                     [&](const StackChange& change) { announced.push_back(change); });
    for (int i = 0; i < 2; ++i) document.amendRecord(1, [](Watermark& w) { w.Width = 40.0F; });
    document.amendRecord(7, [](Watermark& w) { w.Width = 40.0F; });
    EXPECT_EQ(document.watermarks()[1].Width, 40.0F);
    EXPECT_EQ(document.history().count(), 0);
    EXPECT_THAT(announced, ElementsAre(StackChange{.records = {1}}));
}

}  // namespace
}  // namespace zelto
