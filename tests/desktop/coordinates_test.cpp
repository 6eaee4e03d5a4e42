// Coordinates copied, pasted and typed.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

class CoordinatesTest final : public WindowCase {
    Q_OBJECT

private slots:
    void aGroupOfCoordinatesIsCopiedAndPasted() {
        hands_->click("mnuOneOpen");
        hands_->click("optWdms");
        paste("paste txtWdmsPhi", "37.35332567, 126.32293454\t30.1756\n");
        QCOMPARE(textsOf({"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}),
                 (QStringList{"37.35332567", "126.32293454", "30.1756"}));
        QVERIFY2(said_.contains("37°35′33.2567″"), qPrintable(said_));
        QTest::mouseClick(window_->findChild<QWidget*>("copy txtWdmsPhi"), Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(),
                 QStringLiteral("37.35332567\t126.32293454\t30.1756"));
    }

    void aRowOfOurOwnReportIsPastedIntoEitherGroup() {
        hands_->click("mnuOneOpen");
        const char* row = "101  37-35-33.2567 126-32-29.3454 30.1756";
        paste("paste txtWdmsPhi", row);
        QCOMPARE(textsOf({"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}),
                 (QStringList{"37.35332567", "126.32293454", "30.1756"}));
        hands_->click("optWdeg");
        paste("paste txtWdegPhi", row);
        QCOMPARE(textsOf({"txtWdegPhi", "txtWdegLam", "txtWdegTH"}),
                 (QStringList{"37.5925713055556", "126.541484833333", "30.1756"}));
        paste("paste txtX", "101\t454572.77052\t159435.67323");
        QCOMPARE(textsOf({"txtX", "txtY"}), (QStringList{"454572.77052", "159435.67323"}));
        QVERIFY2(said_.contains("높이는 그대로"), qPrintable(said_));
    }

    void aPasteThatIsRefusedChangesNothingAndSaysWhy() {
        hands_->click("mnuOneOpen");
        hands_->type("txtWdmsPhi", "37.1");
        paste("paste txtWdmsPhi", "37,35332567 126,32293454 30,1756");
        QCOMPARE(textsOf({"txtWdmsPhi"}), QStringList{"37.1"});
        QVERIFY2(said_.contains("쉼표"), qPrintable(said_));
        // A closed group takes nothing.
        const QStringList before = textsOf({"txtWdegPhi"});
        paste("paste txtWdegPhi", "37.5 126.5");
        QCOMPARE(textsOf({"txtWdegPhi"}), before);
        QVERIFY2(said_.contains("닫혀"), qPrintable(said_));
    }

private:
    void paste(const char* button, const char* text) {
        said_.clear();
        QApplication::clipboard()->setText(QString::fromUtf8(text));
        QTest::mouseClick(window_->findChild<QWidget*>(button), Qt::LeftButton);
    }

    [[nodiscard]] QStringList textsOf(std::initializer_list<const char*> boxes) const {
        QStringList texts;
        for (const char* box : boxes) texts << hands_->widget<QLineEdit>(box)->text();
        return texts;
    }
};

std::unique_ptr<QObject> kelvo::testing::coordinatesTest() {
    return std::make_unique<CoordinatesTest>();
}

#include "coordinates_test.moc"
