#include "desktop/program_folder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileInfo>

#include "desktop/help_viewer.h"

namespace corvanda {
namespace {

TEST(ProgramFolderTest, splits_the_executable_into_folder_and_name) {
    const struct {
        const char* executable;
        const char* folder;
        const char* name;
    } table[] = {
        {"/opt/juegos de mesa/corvanda", "/opt/juegos de mesa", "corvanda"},
        {"/opt/Señal/corvanda.x86_64", "/opt/Señal", "corvanda"},
        {"/opt/v1.2/corvanda", "/opt/v1.2", "corvanda"},
        {"/corvanda", "", "corvanda"},
        {"/opt/.oculto", "/opt", ".oculto"},
    };
    for (const auto& row : table) {
        const ProgramFolder app(QString::fromUtf8(row.executable));
        EXPECT_EQ(app.Path(), row.folder);
        EXPECT_EQ(app.EXEName(), row.name);
    }
}

TEST(ProgramFolderTest, finds_the_running_program) {
    const ProgramFolder app;
    const QString self = QString::fromStdString(app.Path() + "/" + app.EXEName());
    EXPECT_TRUE(QFileInfo(self).isExecutable()) << self.toStdString();
}

TEST(ProgramFolderTest, only_the_part_behind_the_folder_changes_its_separators) {
    const struct {
        const char* folder;
        const char* path;
        const char* native;
    } table[] = {
        {"/opt/game", "/opt/game\\Sonidos\\Pop2.Wav", "/opt/game/Sonidos/Pop2.Wav"},
        {"/opt/my\\game", "/opt/my\\game\\Corvanda.avi", "/opt/my\\game/Corvanda.avi"},
        {"", "\\Corvanda.avi", "/Corvanda.avi"},
        {"/opt/game", "\\elsewhere\\x.Wav", "/elsewhere/x.Wav"},
        {"/opt/game", "/opt/game", "/opt/game"},
        {"/opt/Señal", "/opt/Señal\\Ñu.HLP", "/opt/Señal/Ñu.HLP"},
    };
    for (const auto& row : table)
        EXPECT_EQ(NativePath(row.folder, row.path).toStdString(), row.native);
}

class OneBox final : public MessageBoxes {
  public:
    Integer MsgBox(const std::string& text, Integer style, const std::string& title) override {
        shown += title + "|" + std::to_string(style) + "|" + text;
        return button::Ok;
    }
    std::string shown;
};

TEST(HelpViewerTest, names_the_file_as_the_person_knows_it) {
    OneBox box;
    QtHelpViewer viewer(box, "/opt/my\\game", "Corvanda");
    viewer.WinHelp("/opt/my\\game\\corvanda.HLP", help::Contents, 0);
    EXPECT_EQ(box.shown, "Corvanda|48|The help file /opt/my\\game/corvanda.HLP cannot be opened.");
}

}  // namespace
}  // namespace corvanda
