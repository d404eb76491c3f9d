// The list of games, a line each: what the file says shows a line an identifier, what is typed
// is stored a line an identifier, and the notch reads back exactly what was typed.

#include "shell/game_list_editor.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFocusEvent>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "activity/game_list_parser.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "shell/settings_window.h"
#include "tindra_providers.h"
#include "views/view_registry.h"

namespace tindra {
namespace {

void leave(QWidget* editor) {
  QFocusEvent out(QEvent::FocusOut);
  QCoreApplication::sendEvent(editor, &out);
}

TEST(GameListEditorTest, AnyMixOfSeparatorsBecomesALineAnIdentifier) {
  // Commas, semicolons, tabs, runs of blank lines and Unicode's em space between them.
  EXPECT_EQ(GameListEditor::asLines(QStringLiteral(
                "com.a.One, org.b.Two;net.c.Three\t\n\n  io.d.Four\u2003se.e.Five\n")),
            QStringLiteral("com.a.One\norg.b.Two\nnet.c.Three\nio.d.Four\nse.e.Five"));
  EXPECT_EQ(GameListEditor::asLines(QStringLiteral(" \n,;\n")), QString());

  GameListEditor editor;
  QSignalSpy edited(&editor, &GameListEditor::edited);
  editor.setStored(QStringLiteral("com.a.One,org.b.Two"));
  EXPECT_EQ(editor.toPlainText(), QStringLiteral("com.a.One\norg.b.Two"));
  // Leaving it unchanged, or changed only in its spacing, is no edit.
  leave(&editor);
  editor.setPlainText(QStringLiteral("com.a.One\n\n org.b.Two \n"));
  leave(&editor);
  EXPECT_EQ(edited.count(), 0);
  editor.setPlainText(QStringLiteral("com.a.One\nsteam\n"));
  leave(&editor);
  EXPECT_EQ(edited.count(), 1);
  EXPECT_EQ(editor.stored(), QStringLiteral("com.a.One\nsteam"));
}

TEST(GameListEditorTest, SettingsStoresTheLinesAndTheNotchReadsThem) {
  QTemporaryDir dir;
  SettingsStore store(dir.filePath("settings.json").toStdString(), [] { return 0.0; });
  const ViewRegistry views(TindraProviders::views());
  SettingsWindow window(store, views);
  auto* games =
      qobject_cast<GameListEditor*>(window.editorFor(settings::gameBundleIdentifiers.name));
  ASSERT_NE(games, nullptr);
  EXPECT_EQ(games->toPlainText(), QString());

  games->setPlainText(QStringLiteral("org.supertuxproject.SuperTux\n\ncom.valvesoftware.Steam  "));
  leave(games);
  const std::string stored = store.read(settings::gameBundleIdentifiers);
  EXPECT_EQ(stored, "org.supertuxproject.SuperTux\ncom.valvesoftware.Steam");
  EXPECT_EQ(GameListParser::parse(stored),
            (std::vector<std::string>{"org.supertuxproject.SuperTux", "com.valvesoftware.Steam"}));

  // Written by hand in the file with commas, it shows a line each.
  ASSERT_TRUE(store.write(settings::gameBundleIdentifiers, std::string("a.b.C, d.e.F")));
  EXPECT_EQ(games->toPlainText(), QStringLiteral("a.b.C\nd.e.F"));
  ASSERT_TRUE(store.reset(settings::gameBundleIdentifiers));
  EXPECT_EQ(games->toPlainText(), QString());
}

}  // namespace
}  // namespace tindra
