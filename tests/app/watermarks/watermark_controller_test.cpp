// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_controller.h"

#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_editors.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QListView>
#include <QMimeData>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto {
namespace {

using ::testing::ElementsAre;

Watermark startingText(const QString& content) {
    Watermark watermark = WatermarkController::startingWatermark(watermark_type::Text);
    watermark.Text = content;
    return watermark;
}

class WatermarkControllerTest : public ::testing::Test {
  protected:
    WatermarkControllerTest() {
        EditorSet editors;
        for (const EditorKind kind : {EditorKind::Image, EditorKind::Text, EditorKind::Shape,
                                      EditorKind::QrCode, EditorKind::Filter, EditorKind::Copyright}) {
            editors[kind] = {{}, [kind](const EditorCall& call) {
                                 if (kind == EditorKind::Text) call.put(startingText(QStringLiteral("new")));
                             }};
        }
        opener = std::make_unique<WatermarkEditors>(watermarks, photos, std::move(editors), nullptr);
        QObject::connect(opener.get(), &WatermarkEditors::opened, opener.get(), [this] {
            opened.emplace_back(opener->subject()->kind, opener->subject()->watermark);
        });
    }

    void add(const Watermark& watermark) {
        watermarks.resetCurrentWatermarkIndex();
        watermarks.ReflectWatermark(watermark);
    }

    // What the rows of the list show, checked ones with a "+".
    QStringList rows() {
        QStringList rows;
        for (int row = 0; row < watermarks.model().rowCount(); ++row) {
            const QModelIndex index = watermarks.model().index(row);
            const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            rows.append((isOn ? QStringLiteral("+") : QStringLiteral("-")) + index.data().toString());
        }
        return rows;
    }

    void select(int row) {
        watermarks.selection().setCurrentIndex(watermarks.model().index(row),
                                               QItemSelectionModel::ClearAndSelect);
    }

    // What the selected row shows; nothing where none is selected.
    QString selected() { return watermarks.model().index(watermarks.selectedRow()).data().toString(); }

    QUndoStack& history() { return document.history(); }

    WatermarkDocument document;
    QUndoStack photoHistory;
    ImageListController photos{photoHistory};
    WatermarkController watermarks{document};
    std::unique_ptr<WatermarkEditors> opener;
    std::vector<std::pair<EditorKind, int>> opened;
};

TEST_F(WatermarkControllerTest, RowsAreLabelledByTheirKind) {
    Watermark logo(watermark_type::Image);
    logo.ImagePath = QStringLiteral("/logos/mine.png");
    add(logo);
    add(startingText(QStringLiteral("two\nlines")));
    for (const std::int32_t shape : {1, 2, 3, 4, 9}) {
        Watermark watermark(watermark_type::Shape);
        watermark.ShapeType = shape;
        add(watermark);
    }
    watermarks.AddFilter(8);
    CopyRightMetaData copyright;
    watermarks.SetMetadata(copyright);
    EXPECT_EQ(rows(), QStringList({QStringLiteral("+Filter - Paris"), QStringLiteral("-Copyright"),
                                   QStringLiteral("+/logos/mine.png"), QStringLiteral("+two lines"),
                                   QStringLiteral("+Shape - Rectangle"), QStringLiteral("+Shape - Ellipse"),
                                   QStringLiteral("+Shape - Polygon"), QStringLiteral("+Shape - Line"),
                                   QStringLiteral("+Shape - ")}));
}

TEST_F(WatermarkControllerTest, ChecksSwitchTheFilterTheCopyrightAndTheWatermarks) {
    add(startingText(QStringLiteral("a")));
    watermarks.AddFilter(3);
    CopyRightMetaData copyright;
    copyright.Enabled = true;
    watermarks.SetMetadata(copyright);
    for (int row = 0; row < 3; ++row) watermarks.EnableDisableWatermark(row);
    EXPECT_EQ(rows(), QStringList({QStringLiteral("-Filter - Earth"), QStringLiteral("-Copyright"),
                                   QStringLiteral("-a")}));
    EXPECT_EQ(document.state().Stack.SelectedFilter, 0);
    EXPECT_FALSE(document.state().Stack.Metadata);
    EXPECT_FALSE(watermarks.GetWatermarkAtRow(0).IsEnabled);
    EXPECT_EQ(history().undoText(), QStringLiteral("Switch Watermark Off"));
    for (int row = 0; row < 3; ++row) watermarks.EnableDisableWatermark(row);
    EXPECT_EQ(document.state().Stack.SelectedFilter, 3);
    EXPECT_TRUE(document.state().Stack.Metadata);
}

TEST_F(WatermarkControllerTest, RemovingARowTakesAwayWhatItShows) {
    add(startingText(QStringLiteral("a")));
    add(startingText(QStringLiteral("b")));
    watermarks.AddFilter(3);
    watermarks.SetMetadata(CopyRightMetaData());
    watermarks.RemoveWatermark(2);
    EXPECT_EQ(rows(), QStringList({QStringLiteral("+Filter - Earth"), QStringLiteral("-Copyright"),
                                   QStringLiteral("+b")}));
    watermarks.RemoveWatermark(1);
    EXPECT_EQ(rows(), QStringList({QStringLiteral("+Filter - Earth"), QStringLiteral("+b")}));
    watermarks.RemoveWatermark(0);
    EXPECT_EQ(rows(), QStringList(QStringLiteral("+b")));
    EXPECT_EQ(document.state().Stack.SelectedFilter, 0);
    for (int row : {-1, 1}) watermarks.RemoveWatermark(row);
    EXPECT_EQ(rows().size(), 1);
    for (int step = 0; step < 3; ++step) history().undo();
    EXPECT_EQ(rows().size(), 4);
}

TEST_F(WatermarkControllerTest, RemoveAllKeepsOnlyTheFrame) {
    add(startingText(QStringLiteral("a")));
    watermarks.AddFilter(3);
    watermarks.SetMetadata(CopyRightMetaData());
    watermarks.AddEffects(PhotoEffects());
    watermarks.RemoveAllWatermarks();
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_EQ(document.state().Stack.SelectedFilter, 0);
    EXPECT_TRUE(watermarks.GetEffect().has_value());
    history().undo();
    EXPECT_EQ(rows().size(), 3);
}

TEST_F(WatermarkControllerTest, ARowStaysSelectedWhateverHappensAroundIt) {
    QListView list;  // a view has a say in what is selected
    list.setModel(&watermarks.model());
    list.setSelectionModel(&watermarks.selection());
    for (const char* each : {"a", "b", "c", "d"}) add(startingText(QLatin1String(each)));
    watermarks.selectWatermark(1);
    const std::function<void()> changes[] = {
        [this] { watermarks.AddFilter(3); },
        [this] { watermarks.SetMetadata(CopyRightMetaData()); },
        [this] { watermarks.RemoveWatermark(2); },
        [this] {
            history().undo();
            EXPECT_EQ(selected(), QStringLiteral("a")) << "what Undo brings back is shown";
            watermarks.selectWatermark(1);
        },
        [this] { watermarks.RemoveWatermark(0); },
        [this] { watermarks.RemoveWatermark(4); },
    };
    for (const auto& change : changes) {
        change();
        EXPECT_EQ(selected(), QStringLiteral("b")) << history().index();
    }
    EXPECT_EQ(rows(), QStringList({QStringLiteral("-Copyright"), QStringLiteral("+a"), QStringLiteral("+b"),
                                   QStringLiteral("+c")}));
    for (const char* next : {"c", "a", "Copyright", ""}) {
        watermarks.RemoveSelectedWatermarks();
        EXPECT_EQ(selected(), QLatin1String(next));
    }
    add(startingText(QStringLiteral("e")));
    watermarks.selectWatermark(-1);
    EXPECT_EQ(watermarks.selectedRow(), -1);
    watermarks.RemoveSelectedWatermarks();
    EXPECT_EQ(rows(), QStringList(QStringLiteral("+e"))) << "what is not selected is not removed";
    watermarks.selectWatermark(0);
    watermarks.replaceStack(
        {{startingText(QStringLiteral("f")), startingText(QStringLiteral("g"))}, {}, 0, false}, {}, {});
    EXPECT_EQ(selected(), QStringLiteral("f"));
    EXPECT_EQ(rows(), QStringList({QStringLiteral("+f"), QStringLiteral("+g")}));
}

TEST_F(WatermarkControllerTest, MovingExchangesNeighboursAndKeepsTheSelection) {
    for (const char* each : {"a", "b", "c"}) add(startingText(QLatin1String(each)));
    watermarks.AddFilter(1);
    const auto order = [this] { return rows().mid(1).join(QString()).remove(QLatin1Char('+')); };
    select(1);
    watermarks.MoveWatermarkUp();
    EXPECT_EQ(order(), QStringLiteral("abc")) << "the first does not go up";
    watermarks.MoveWatermarkDown();
    EXPECT_EQ(order(), QStringLiteral("bac"));
    watermarks.MoveWatermarkDown();
    EXPECT_EQ(order(), QStringLiteral("bca"));
    EXPECT_EQ(watermarks.watermarkRowIndexAfterRemovingFilterAndMetadata(), 2);
    watermarks.MoveWatermarkDown();
    EXPECT_EQ(order(), QStringLiteral("bca")) << "the last does not go down";
    select(0);
    watermarks.MoveWatermarkUp();
    watermarks.MoveWatermarkDown();
    EXPECT_EQ(order(), QStringLiteral("bca")) << "a filter row does not move";
    EXPECT_EQ(history().undoText(), QStringLiteral("Move Watermark"));
    history().undo();
    EXPECT_EQ(order(), QStringLiteral("bac"));
}

TEST_F(WatermarkControllerTest, SeveralRowsAreMovedCopiedAndRemovedInOneStepEach) {
    for (const char* each : {"a", "b", "c", "d"}) add(startingText(QLatin1String(each)));
    watermarks.AddFilter(1);
    history().clear();
    const auto order = [this] { return rows().mid(1).join(QString()).remove(QLatin1Char('+')); };
    WatermarkListModel& model = watermarks.model();
    const auto drag = [&](Qt::DropAction action, int beforeRow) {
        const std::unique_ptr<QMimeData> data(model.mimeData(watermarks.selection().selectedIndexes()));
        model.dropMimeData(data.get(), action, beforeRow, 0, {});
    };
    const auto liesOnAnother = [this](int index) {
        const auto& all = document.watermarks();
        return std::count(all.begin(), all.end(), all.at(static_cast<std::size_t>(index))) > 1;
    };
    const auto showsOneOf = [this](const std::vector<int>& expected) {
        const std::vector<int> selected = watermarks.selectedWatermarks();
        return std::find_first_of(selected.begin(), selected.end(), expected.begin(), expected.end()) !=
               selected.end();
    };
    struct Row {
        const char* what;
        std::vector<int> selected;
        std::function<void()> act;
        const char* order;
        std::vector<int> selectedThen;
    };
    QMimeData foreign;
    foreign.setText(
        QStringLiteral("<WatermarkList><Watermark Type='1'><Text>x</Text></Watermark></WatermarkList>"));
    const Row table[] = {
        {"up", {0, 2}, [&] { watermarks.MoveWatermarkUp(); }, "acbd", {0, 1}},
        {"down", {1, 3}, [&] { watermarks.MoveWatermarkDown(); }, "acbd", {2, 3}},
        {"dragged down", {0, 1}, [&] { drag(Qt::MoveAction, 4); }, "cabd", {1, 2}},
        {"dragged to the end", {0}, [&] { drag(Qt::MoveAction, -1); }, "bcda", {3}},
        {"dragged over the filter", {2}, [&] { drag(Qt::MoveAction, 0); }, "cabd", {0}},
        {"copied by a drag", {0}, [&] { drag(Qt::CopyAction, 3); }, "abacd", {2}},
        {"duplicated", {0, 2}, [&] { watermarks.duplicateSelected({}); }, "abcacd", {3, 4}},
        {"cut", {1, 2}, [&] { watermarks.cutSelected(); }, "ad", {1}},
        {"pasted what was cut",
         {3},
         [&] { watermarks.paste(*QGuiApplication::clipboard()->mimeData(), {}); },
         "abcdbc",
         {4, 5}},
        {"pasted from elsewhere", {0}, [&] { watermarks.paste(foreign, {}); }, "axbcd", {1}},
        {"removed", {0, 3}, [&] { watermarks.RemoveSelectedWatermarks(); }, "bc", {0}},
        {"renamed",
         {1},
         [&] { model.setData(model.index(2), QStringLiteral("Mine"), Qt::EditRole); },
         "abcd",
         {1}},
        {"hidden", {0, 1}, [&] { watermarks.toggleSelected(); }, "-a-bcd", {0, 1}},
    };
    for (const Row& row : table) {
        watermarks.selectWatermarks(row.selected);
        row.act();
        EXPECT_EQ(order().toStdString(), row.order) << row.what;
        EXPECT_EQ(watermarks.selectedWatermarks(), row.selectedThen) << row.what;
        EXPECT_EQ(history().index(), 1) << row.what;
        for (const int i : row.selectedThen) EXPECT_FALSE(liesOnAnother(i)) << row.what;
        const bool added = document.count() > 4;
        if (!added) watermarks.selectWatermark(WatermarkDocument::NoWatermark);
        history().undo();
        EXPECT_EQ(order(), QStringLiteral("abcd")) << row.what;
        EXPECT_TRUE(added || showsOneOf(row.selected)) << row.what << " and shown again";
    }
    foreign.setText(QStringLiteral("<WatermarkList/>"));
    EXPECT_FALSE(watermarks.paste(foreign, {}));
}

TEST_F(WatermarkControllerTest, ARowOpensTheEditorOfItsKindOnItsRecord) {
    for (const std::int32_t type : {0, 1, 2, 3}) {
        Watermark watermark(type);
        if (type == watermark_type::QrCode) watermark.Text = QStringLiteral("code");
        add(watermark);
    }
    watermarks.AddFilter(1);
    watermarks.SetMetadata(CopyRightMetaData());
    for (int row = 0; row < 6; ++row) opener->WatermarkListDoubleClicked(row);
    EXPECT_THAT(opened, ElementsAre(std::pair(EditorKind::Filter, -1), std::pair(EditorKind::Copyright, -1),
                                    std::pair(EditorKind::Image, 0), std::pair(EditorKind::Text, 1),
                                    std::pair(EditorKind::Shape, 2), std::pair(EditorKind::QrCode, 3)));
    opened.clear();
    opener->OpenTextWatermarkSettings();
    EXPECT_FALSE(opener->canOpen(EditorKind::Effects));
    opener->OpenEffectsSettings();
    EXPECT_THAT(opened, ElementsAre(std::pair(EditorKind::Text, 4)));
}

TEST_F(WatermarkControllerTest, SomethingNewAndWhatIsDoneToItIsOneStepAndCanBeTakenAway) {
    add(startingText(QStringLiteral("a")));
    opener->OpenTextWatermarkSettings();
    watermarks.UpdateWatermark(startingText(QStringLiteral("Hi")), visitStep());
    EXPECT_TRUE(opener->isNew());
    opener->takeAway();
    EXPECT_EQ(rows(), QStringList(QStringLiteral("+a")));
    history().redo();
    EXPECT_EQ(rows(), QStringList({QStringLiteral("+a"), QStringLiteral("+Hi")}));
    EXPECT_EQ(history().undoText(), QStringLiteral("Add Text"));

    opener->WatermarkListDoubleClicked(1);
    EXPECT_FALSE(opener->isNew());
    watermarks.UpdateWatermark(startingText(QStringLiteral("Hi!")), visitStep());
    EXPECT_EQ(history().count(), 3) << "another visit is another step";
    EXPECT_EQ(history().undoText(), QStringLiteral("Edit Text"));
}

TEST_F(WatermarkControllerTest, WhatIsEditedIsWhatIsSelected) {
    const auto edited = [this] { return opener->subject() ? opener->subject()->watermark : -2; };
    for (const char* each : {"a", "b", "c"}) add(startingText(QLatin1String(each)));
    select(2);
    EXPECT_EQ(edited(), 2);
    watermarks.RemoveWatermark(0);
    EXPECT_EQ(edited(), 1) << "the same watermark at another place";
    EXPECT_EQ(watermarks.CurrentWatermark(), 1);
    watermarks.AddFilter(3);
    EXPECT_EQ(edited(), 1);
    watermarks.RemoveSelectedWatermarks();
    EXPECT_EQ(edited(), 0) << "its neighbour";
    opener->OpenFilterWindow();
    EXPECT_EQ(edited(), -1);
    EXPECT_EQ(selected(), QStringLiteral("Filter - Earth"));
    opener->close();
    EXPECT_EQ(edited(), -2);
    EXPECT_EQ(watermarks.selectedRow(), -1);
}

TEST_F(WatermarkControllerTest, AnEditedTextThatBecomesEmptyIsRemovedAndAnAbsentOneIsNot) {
    add(startingText(QStringLiteral("a")));
    document.setCurrentWatermark(0);
    watermarks.ReflectWatermark(startingText(QLatin1String("")));
    EXPECT_TRUE(rows().isEmpty());
    add(startingText(QString()));
    EXPECT_EQ(rows().size(), 1);
    add(startingText(QLatin1String("")));
    EXPECT_EQ(rows().size(), 1) << "a new one that is empty is not added";
}

TEST_F(WatermarkControllerTest, ChoosingNoFilterChangesNothing) {
    watermarks.AddFilter(5);
    watermarks.AddFilter(0);
    EXPECT_EQ(rows(), QStringList(QStringLiteral("+Filter - Lumina")));
}

}  // namespace
}  // namespace zelto
