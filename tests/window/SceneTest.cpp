// Scenes at the window, compared as a whole with the text that is kept.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "Pictures.h"
#include "ScenePlayer.h"

namespace Parlino {
namespace {

class Scenes : public testing::TestWithParam<std::string> {};

TEST_P(Scenes, AreAsKept) {
  QFile file(QString(PARLINO_SCENE_FOLDER "/%1.txt").arg(GetParam().c_str()));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  const QStringList kept = QString::fromUtf8(file.readAll()).chopped(1).split('\n');
  const QStringList now = PlayScenes(kept);
  if (picturesAreAccepted) {
    file.resize(0);
    file.write((now.join('\n') + '\n').toUtf8());
    return;
  }
  const auto [keptEnd, nowEnd] = std::ranges::mismatch(kept, now);
  const qsizetype line = keptEnd - kept.begin();
  EXPECT_TRUE(kept == now) << "another from line " << line + 1 << " on\n--- expected\n"
                           << kept.mid(std::max(0LL, line - 4), 10).join('\n').toStdString()
                           << "\n--- actual\n"
                           << now.mid(std::max(0LL, line - 4), 10).join('\n').toStdString();
}

std::vector<std::string> NamesOfScenes() {
  std::vector<std::string> names;
  for (const QFileInfo& file : QDir(PARLINO_SCENE_FOLDER).entryInfoList({"*.txt"}))
    names.push_back(file.baseName().toStdString());
  return names;
}

INSTANTIATE_TEST_SUITE_P(At, Scenes, testing::ValuesIn(NamesOfScenes()),
                         [](const auto& scene) { return scene.param; });

}  // namespace
}  // namespace Parlino
