#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>

namespace {

// Without the font's metric twin every text would be boxes, and nothing else would say so.
class ConFuente : public testing::Environment {
  public:
    void SetUp() override {
        ASSERT_EQ(QFontInfo(QFont(QStringLiteral("Arial"))).family().toStdString(), "Liberation Sans");
    }
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication programa(argc, argv);
    testing::AddGlobalTestEnvironment(new ConFuente);
    return RUN_ALL_TESTS();
}
