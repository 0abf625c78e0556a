#include "frmLearnAstrologyMain.h"

#include "astrology/modLearnAstrology.h"
#include "shell/modHelp.h"

namespace quillane {

namespace mla = modLearnAstrology;

namespace {

// "Back To Main" is one control array over two panels.
ControlArray BackToMainButtons(Form& form, Control& browsing, Control& report) {
    ControlArray buttons;
    buttons.Append(form.Add(ControlKind::CommandButton, "cmdBackToMain", &browsing, 0));
    buttons.Append(form.Add(ControlKind::CommandButton, "cmdBackToMain", &report, 1));
    return buttons;
}

std::string Trim(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

frmLearnAstrologyMain::frmLearnAstrologyMain(Application& app)
    : SubjectWindow(app, "frmLearnAstrologyMain", "Quillane Learn Astrology"),
      nuFile(Add(ControlKind::Menu, "nuFile")), mnuExit(Add(ControlKind::Menu, "mnuExit", &nuFile)),
      fraFullBrand(Add(ControlKind::Frame, "fraFullBrand")),
      Frame1(Add(ControlKind::Frame, "Frame1")),
      Label1(AddArray(ControlKind::Label, "Label1", 0, 2, &Frame1)),
      optOption(AddArray(ControlKind::OptionButton, "optOption", 0, 1, &Frame1)),
      cboLearnOptionMain(Add(ControlKind::ComboBox, "cboLearnOptionMain", &Frame1)),
      cboLearnOptionSub(Add(ControlKind::ComboBox, "cboLearnOptionSub", &Frame1)),
      cboTestOptionMain(Add(ControlKind::ComboBox, "cboTestOptionMain", &Frame1)),
      cboTestOptionSub(Add(ControlKind::ComboBox, "cboTestOptionSub", &Frame1)),
      cmdNext(Add(ControlKind::CommandButton, "cmdNext", &Frame1)),
      Frame2(Add(ControlKind::Frame, "Frame2")),
      lblLabel(AddArray(ControlKind::Label, "lblLabel", 0, 3, &Frame2)),
      picAstro(Add(ControlKind::PictureBox, "picAstro", &Frame2)),
      cmdBackDesc(Add(ControlKind::CommandButton, "cmdBackDesc", &Frame2)),
      cmdNextDesc(Add(ControlKind::CommandButton, "cmdNextDesc", &Frame2)),
      Frame3(Add(ControlKind::Frame, "Frame3")),
      lblTest(AddArray(ControlKind::Label, "lblTest", 0, 3, &Frame3)),
      picTest(Add(ControlKind::PictureBox, "picTest", &Frame3)),
      optAnswer_Choice(AddArray(ControlKind::OptionButton, "optAnswer_Choice", 0, 4, &Frame3)),
      txtAnswer_Choice(AddArray(ControlKind::TextBox, "txtAnswer_Choice", 0, 4, &Frame3)),
      cmdNextQuestion(Add(ControlKind::CommandButton, "cmdNextQuestion", &Frame3)),
      Frame4(Add(ControlKind::Frame, "Frame4")), RTB(Add(ControlKind::RichTextBox, "RTB", &Frame4)),
      cmdBackToMain(BackToMainButtons(*this, Frame2, Frame4)) {
    nuFile.SetCaption("&File");
    mnuExit.SetCaption("E&xit");
    modHelp::AddHelpMenu(
        *this, {"mnuFileSep1", "mnuFileSep2", "mnuMakeMoney", "&Check for Software Update"});
    modHelp::AddSubjectLinks(*this, "Label61", &fraFullBrand);

    for (Control* panel : {&Frame1, &Frame2, &Frame3, &Frame4})
        Frames.Add(*panel);

    Label1(0).SetCaption("Welcome to the world of learning the significance of astrology, signs, "
                         "stars, planets and houses!");
    Label1(1).SetCaption("This software aims to help you understand the importance of astrology "
                         "better and learn the effects and attributes of the signs, planets and "
                         "houses.");
    Label1(2).SetCaption("Select one option below and click on the Next button to continue.");
    optOption(0).SetCaption("Learn Option");
    optOption(1).SetCaption("Test Criteria");
    optOption(0).SetValue(-1);
    cmdNext.SetCaption("Next");
    cmdBackDesc.SetCaption("Back");
    cmdNextDesc.SetCaption("Next");
    cmdBackToMain(0).SetCaption("&Back To Main");
    cmdBackToMain(1).SetCaption("&Back To Main");
    lblTest(3).SetCaption("Select one option from the given choices below.");
    cmdNextQuestion.SetCaption("Next Question");
    optAnswer_Choice(0).SetValue(-1);

    // Design size in twips: 840 by 660 pixels.
    Me().Move(0, 0, 12600, 9900);

    mnuExit.Click = [this] { CloseWindow(); };
    cboLearnOptionMain.Click = [this] { FillSubList(cboLearnOptionSub, cboLearnOptionMain); };
    cboTestOptionMain.Click = [this] { FillSubList(cboTestOptionSub, cboTestOptionMain); };
    optOption.OnClick([this](int Index) { EnableOptionCombos(Index); });
    cmdNext.Click = [this] { StartRun(); };
    cmdNextDesc.Click = [this] { NextRecord(); };
    cmdBackDesc.Click = [this] { PreviousRecord(); };
    cmdBackToMain.OnClick([this](int) { BackToChoice(); });
    cmdNextQuestion.Click = [this] { NextQuestion(); };
    // A click in a choice's text picks that choice.
    txtAnswer_Choice.OnClick([this](int Index) { optAnswer_Choice(Index).SetValue(-1); });
}

void frmLearnAstrologyMain::Form_Load() {
    InitAstrologyWindow();
}

Json frmLearnAstrologyMain::Variables() const {
    return astrology::RunVariables(run);
}

void frmLearnAstrologyMain::InitAstrologyWindow() {
    const double screen = App().Svc().screen->WidthTwips();
    Me().SetLeft(int((screen - Me().Width()) / 2));
    Me().SetTop(0);

    cboLearnOptionMain.Clear();
    for (const char* item : {"Learn By Signs", "Learn By Planets", "Learn By Houses"})
        cboLearnOptionMain.AddItem(item);
    cboLearnOptionSub.Clear();
    for (const std::string& item : mla::CategoryCaptions(mla::kSigns))
        cboLearnOptionSub.AddItem(item);
    cboTestOptionMain.Clear();
    for (const char* item : {"Test By Signs", "Test By Planets", "Test By Houses"})
        cboTestOptionMain.AddItem(item);
    cboTestOptionSub.Clear();
    for (const std::string& item : mla::CategoryCaptions(mla::kSigns))
        cboTestOptionSub.AddItem(item);

    // Selecting in a main combo counts as its click and fills its sub list.
    cboLearnOptionMain.SetListIndex(0);
    cboLearnOptionSub.SetListIndex(0);
    cboTestOptionMain.SetListIndex(0);
    cboTestOptionSub.SetListIndex(0);

    cboTestOptionMain.SetEnabled(false);
    cboTestOptionSub.SetEnabled(false);
    Frames.BringToFront(Frame1);
}

void frmLearnAstrologyMain::FillSubList(Control& sub, const Control& main) {
    sub.Clear();
    const int category = main.ListIndex() == 0   ? mla::kSigns
                         : main.ListIndex() == 1 ? mla::kPlanets
                                                 : mla::kHouses;
    for (const std::string& item : mla::CategoryCaptions(category))
        sub.AddItem(item);
    sub.SetListIndex(0);
}

void frmLearnAstrologyMain::EnableOptionCombos(int Index) {
    const bool learn = Index == 0;
    cboLearnOptionMain.SetEnabled(learn);
    cboLearnOptionSub.SetEnabled(learn);
    cboTestOptionMain.SetEnabled(!learn);
    cboTestOptionSub.SetEnabled(!learn);
}

void frmLearnAstrologyMain::StartRun() {
    const bool learn = optOption(0).Selected();
    const Control& main = learn ? cboLearnOptionMain : cboTestOptionMain;
    const Control& sub = learn ? cboLearnOptionSub : cboTestOptionSub;
    run.intMainIndex = std::int16_t(main.ListIndex());
    run.intSubIndex = std::int16_t(sub.ListIndex());
    run.strMainCaption = Trim(main.Text());
    run.strSubCaption = Trim(sub.Text());
    run.intCurrent = 0;
    if (learn) {
        ShowRecord();
        Frames.BringToFront(Frame2);
    } else {
        LoadQuestion();
        Frames.BringToFront(Frame3);
    }
}

void frmLearnAstrologyMain::ShowGlyph(Control& picture, int row) {
    const bool planets = run.strValues.UBound() == long(mla::kPlanetRows);
    Picture glyph;
    glyph.descriptor = std::string(planets ? "imgPlanet " : "imgSign ") + std::to_string(row + 1);
    glyph.resource = std::string(planets ? "astrology/planet-" : "astrology/sign-") +
                     std::to_string(row) + ".svg";
    glyph.description =
        "Glyph of " + (planets ? mla::strPlanet[std::size_t(row)] : mla::strSign[std::size_t(row)]);
    picture.SetPicture(glyph);
}

void frmLearnAstrologyMain::ShowRecord() {
    if (run.intCurrent == 0)
        astrology::CopyRunColumns(run);
    lblLabel(0).SetCaption(run.strMainCaption);
    lblLabel(1).SetCaption(run.strSubCaption);
    lblLabel(3).SetCaption(run.strValues(run.intCurrent));
    if (run.intMainIndex == mla::kSigns || run.intMainIndex == mla::kPlanets) {
        lblLabel(2).SetVisible(true);
        picAstro.SetVisible(true);
        lblLabel(2).SetCaption(run.strNames(run.intCurrent));
        ShowGlyph(picAstro, run.intCurrent);
    } else {
        // The names column of houses holds sign names; the title is the house.
        lblLabel(2).SetCaption(mla::strHouseNumber[std::size_t(run.intCurrent)]);
        picAstro.SetVisible(false);
    }
}

void frmLearnAstrologyMain::NextRecord() {
    ++run.intCurrent;
    if (run.intCurrent < run.strValues.UBound()) {
        ShowRecord();
    } else {
        --run.intCurrent;
        App().MsgBox("You are at the last record", MsgButtons::Ok, MsgIcon::Information);
    }
}

void frmLearnAstrologyMain::PreviousRecord() {
    if (run.intCurrent > 0) {
        --run.intCurrent;
        ShowRecord();
    } else {
        run.intCurrent = 0;
        App().MsgBox("You are at the first record", MsgButtons::Ok, MsgIcon::Information);
    }
}

void frmLearnAstrologyMain::BackToChoice() {
    run.intCurrent = 0;
    run.strValues.Erase();
    run.strNames.Erase();
    run.intOrder.Erase();
    run.strCorrect.Erase();
    run.strUserAnswer.Erase();
    Frames.BringToFront(Frame1);
}

} // namespace quillane
