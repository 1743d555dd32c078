// Files that the program finds beside itself: by which names, and that they are as they should be.
#include "desktop/help_file.h"
#include "desktop/media_file.h"
#include "desktop/program_folder.h"
#include "desktop/wave_file.h"
#include "fuentes.h"
#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

TEST(ProgramFolderTest, splits_the_executable_and_turns_only_what_lies_behind_its_folder) {
    const struct {
        const char *executable, *folder, *name, *path, *native;
    } table[] = {
        {"/opt/game/corvanda", "/opt/game", "corvanda", "\\Sonidos\\x.Wav", "/Sonidos/x.Wav"},
        {"/opt/la Señal/corvanda.x86", "/opt/la Señal", "corvanda", "\\Ñu.HLP", "/Ñu.HLP"},
        {"/opt/v1.2/my\\game/.oculto", "/opt/v1.2/my\\game", ".oculto", "\\a.avi", "/a.avi"},
        {"/corvanda", "", "corvanda", "\\Corvanda.avi", "/Corvanda.avi"},
    };
    for (const auto& row : table) {
        const ProgramFolder program(QString::fromUtf8(row.executable));
        EXPECT_EQ(program.Path(), row.folder);
        EXPECT_EQ(program.EXEName(), row.name);
        EXPECT_EQ(NativePath(row.folder, std::string(row.folder) + row.path).toStdString(),
                  std::string(row.folder) + row.native);
    }
    EXPECT_EQ(NativePath("/opt", "\\elsewhere\\x.Wav"), "/elsewhere/x.Wav");
    EXPECT_EQ(QString::fromStdString(ProgramFolder().Path() + "/" + ProgramFolder().EXEName()),
              QCoreApplication::applicationFilePath());
}

TEST(DataFiles, what_is_no_ordinary_file_is_not_waited_for) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& name : {pipe, folder.path(), folder.filePath("missing"), QString()}) {
        EXPECT_FALSE(wave::ReadWaveFile(name)) << name.toStdString();
        EXPECT_FALSE(media::ReadFilm(name)) << name.toStdString();
        EXPECT_EQ(HelpFile(name).State(), HelpFile::Condition::Missing) << name.toStdString();
    }
}

TEST(DataFiles, every_sound_of_the_game_is_there_and_can_be_played) {
    for (const QString name : {"click1", "bounce", "cannon", "Pop2", "applaus", "strike"}) {
        const auto samples = wave::ReadWaveFile(CORVANDA_FUENTES "/Sonidos/" + name + ".Wav");
        EXPECT_TRUE(samples && samples->size() > 1000) << name.toStdString();
    }
}

}  // namespace
}  // namespace corvanda::pruebas
