// Controls behave as the program's flows expect: values set from code raise
// the user's events, options exclude one another, the rich text view keeps
// its runs, and only what is on the screen can be reached.
#include "common/Application.h"
#include "common/Errors.h"

#include <gtest/gtest.h>

using namespace quillane;

namespace {

class TestForm : public Form {
public:
    explicit TestForm(Application& app) : Form(app, "frmTest") {}
    Control& frame = Add(ControlKind::Frame, "Frame1");
    Control& panelA = Add(ControlKind::PictureBox, "picA");
    Control& panelB = Add(ControlKind::PictureBox, "picB");
    Control& check = Add(ControlKind::CheckBox, "chkA", &panelA);
    ControlArray options = AddArray(ControlKind::OptionButton, "optChoice", 0, 2, &frame);
    Control& otherOption = Add(ControlKind::OptionButton, "optOther", &panelB);
    Control& combo = Add(ControlKind::ComboBox, "cboList", &panelA);
    Control& rich = Add(ControlKind::RichTextBox, "RTB", &panelA);
    Control& text = Add(ControlKind::TextBox, "txtA", &panelA);
    PanelStack stack;
    int clicks = 0, changes = 0;
    TestForm* Setup() {
        stack.Add(panelA);
        stack.Add(panelB);
        check.Click = [this] { ++clicks; };
        combo.Click = [this] { ++clicks; };
        text.Change = [this] { ++changes; };
        return this;
    }
};

struct Fixture : ::testing::Test {
    Application app{Services{}};
    TestForm* form = nullptr;
    void SetUp() override {
        app.RegisterForm("frmTest", [this](Application& a) {
            auto f = std::make_unique<TestForm>(a);
            form = f->Setup();
            return f;
        });
        app.Show("frmTest");
    }
};

} // namespace

TEST_F(Fixture, ValuesSetFromCodeRaiseClickOnlyWhenTheyChange) {
    form->check.SetValue(1);
    form->check.SetValue(1);
    form->check.UserClick();
    EXPECT_EQ(form->check.Value(), 0);
    EXPECT_EQ(form->clicks, 2);
    EXPECT_THROW(form->check.SetValue(3), RuntimeError);

    form->combo.AddItem("Signs");
    form->combo.AddItem("Planets");
    form->combo.SetListIndex(1);
    form->combo.SetListIndex(1);
    EXPECT_EQ(form->combo.Text(), "Planets");
    EXPECT_EQ(form->clicks, 3);

    form->text.SetText("a");
    form->text.SetText("a");
    EXPECT_EQ(form->changes, 1);
}

TEST_F(Fixture, OptionsInOneContainerExcludeOneAnother) {
    int clicked = -1;
    form->options.OnClick([&](int i) { clicked = i; });
    form->otherOption.SetValue(-1);
    form->options(1).SetValue(-1);
    EXPECT_EQ(clicked, 1);
    form->options(2).UserClick();
    EXPECT_EQ(clicked, 2);
    EXPECT_EQ(form->options(1).Value(), 0);
    EXPECT_NE(form->otherOption.Value(), 0) << "an option in another container keeps its value";
}

TEST_F(Fixture, RichTextKeepsItsRunsAndCaret) {
    Control& rtb = form->rich;
    rtb.SetText("Score: ");
    rtb.SetSelStart(long(rtb.Text().size()));
    rtb.SelBold = true;
    rtb.SetSelText("10");
    rtb.SetSelText(" of 12");
    rtb.SelBold = false;
    rtb.SetSelText("\r\nend");
    EXPECT_EQ(rtb.Text(), "Score: 10 of 12\r\nend");
    EXPECT_EQ(rtb.BoldText(), std::vector<std::string>{"10 of 12"});
    rtb.SetSelStart(0);
    rtb.SelBold = true;
    rtb.SetSelText("X");
    EXPECT_EQ(rtb.Text(), "XScore: 10 of 12\r\nend");
    EXPECT_EQ(rtb.BoldText(), (std::vector<std::string>{"X", "10 of 12"}));
    EXPECT_EQ(rtb.SelStart(), 1);
}

TEST_F(Fixture, OnlyWhatIsOnTheScreenCanBeReached) {
    EXPECT_EQ(form->check.Unreachable(), "");
    EXPECT_EQ(form->otherOption.Unreachable(), "hidden") << "its panel is not in front";
    form->stack.BringToFront(form->panelB);
    EXPECT_EQ(form->otherOption.Unreachable(), "");
    EXPECT_EQ(form->check.Unreachable(), "hidden");
    form->frame.SetEnabled(false);
    EXPECT_EQ(form->options(0).Unreachable(), "disabled")
        << "a disabled container disables its controls";
    form->frame.SetVisible(false);
    EXPECT_EQ(form->options(0).Unreachable(), "hidden");
    app.Unload("frmTest");
    EXPECT_EQ(app.Find("frmTest"), nullptr);
}

TEST(Dispatch, AFatalFailureShowsOneBoxNamingTheFileAndEnds) {
    struct Box : IMessageBox {
        std::vector<std::string> texts;
        MsgIcon icon = MsgIcon::None;
        MsgAnswer Show(const std::string& text, const std::string& title, MsgIcon i,
                       MsgButtons) override {
            texts.push_back(title + "|" + text);
            icon = i;
            return MsgAnswer::Ok;
        }
    } box;
    Services services;
    services.messageBox = &box;
    Application app(services);
    app.Dispatch(
        [] { throw FatalError("/opt/quillane/learn.dll", "The card database cannot be found."); });
    ASSERT_EQ(box.texts.size(), 1u);
    EXPECT_NE(box.texts[0].find("Quillane|The card database cannot be found."), std::string::npos);
    EXPECT_NE(box.texts[0].find("/opt/quillane/learn.dll"), std::string::npos);
    EXPECT_EQ(box.icon, MsgIcon::Critical);
    EXPECT_TRUE(app.Ended());
}
