#include "frmMDI.h"

#include "StartUp.h"
#include "common/Application.h"
#include "modHelp.h"

namespace quillane {

namespace {
const char* const kSubjectCaptions[4] = {"Learn Astrology", "Learn Numerology", "Learn Tarot",
                                         "Learn Runes"};
} // namespace

frmMDI::frmMDI(Application& app, LauncherSubjects subjects)
    : Form(app, "frmMDI"), mnuFile(Add(ControlKind::Menu, "mnuFile")),
      mnuExit(Add(ControlKind::Menu, "mnuExit", &mnuFile)),
      Picture1(Add(ControlKind::PictureBox, "Picture1")),
      picButtonContainer(Add(ControlKind::Frame, "picButtonContainer", &Picture1)),
      cmdSelectOption(
          AddArray(ControlKind::CommandButton, "cmdSelectOption", 0, 3, &picButtonContainer)),
      Picture2(Add(ControlKind::PictureBox, "Picture2", &picButtonContainer)),
      Picture3(Add(ControlKind::PictureBox, "Picture3", &picButtonContainer)),
      Picture4(Add(ControlKind::PictureBox, "Picture4", &picButtonContainer)),
      Picture5(Add(ControlKind::PictureBox, "Picture5", &picButtonContainer)),
      picMain(Add(ControlKind::PictureBox, "picMain")),
      lblCaption(AddArray(ControlKind::Label, "lblCaption", 0, 6, &picMain)),
      PicCoBrand(Add(ControlKind::PictureBox, "PicCoBrand")),
      cmdMdiExit(Add(ControlKind::CommandButton, "cmdMdiExit", &PicCoBrand)),
      Label7(Add(ControlKind::Label, "Label7", &PicCoBrand)),
      Picture6(Add(ControlKind::PictureBox, "Picture6", &PicCoBrand)),
      lblZenthoraBanner(Add(ControlKind::Label, "lblZenthoraBanner", &PicCoBrand)),
      subjects_(std::move(subjects)) {
    Me().SetCaption("Quillane v1.20");
    mnuFile.SetCaption("&File");
    mnuExit.SetCaption("E&xit");
    modHelp::AddHelpMenu(*this, {"mnuSep1", "mnuSep2", "mkmoney", "Check for Software &Update"});

    lblCaption(0).SetCaption("Welcome to Quillane");
    lblCaption(1).SetCaption("Welcome to the first edition of the Quillane! Here is your chance to "
                             "make use of our free resources and "
                             "improve your knowledge of Astrology, Numerology, Tarot and Runes. "
                             "Learn from the basics and understand "
                             "your personality better than ever before.");
    lblCaption(2).SetCaption("Quillane includes the following programs");
    for (int i = 0; i < 4; ++i) {
        cmdSelectOption(i).SetCaption(kSubjectCaptions[i]);
        lblCaption(i + 3).SetCaption(kSubjectCaptions[i]);
    }
    cmdMdiExit.SetCaption("&Exit");
    Label7.SetCaption(modHelp::kFullBrandText);
    lblZenthoraBanner.SetCaption(modHelp::kForumText);

    // Design sizes in twips; the launcher centres them by the screen's width.
    picButtonContainer.Move(0, 60, 10800, 1020);
    for (int i = 0; i < 7; ++i)
        lblCaption(i).Move(0, 600 + 700 * i, i == 1 ? 9600 : 4800, i == 1 ? 1200 : 400);
    lblZenthoraBanner.Move(0, 0, 7200, 300);
    cmdMdiExit.Move(0, 0, 1215, 375);

    cmdSelectOption.OnClick([this](int i) { OpenSubjectByButton(i); });
    lblCaption.OnClick([this](int i) { OpenSubjectByLabel(i); });
    lblCaption.OnMouseMove([this](int i) { lblCaption_MouseMove(i); });
    picMain.MouseMove = [this] { picMain_MouseMove(); };
    cmdMdiExit.Click = [this] { App().Unload("frmMDI"); };
    mnuExit.Click = [this] { App().Unload("frmMDI"); };
    Label7.Click = [this] { modHelp::OpenFullBrandPage(App()); };
    lblZenthoraBanner.Click = [this] { modHelp::OpenHomePage(App()); };
    Picture6.Click = [this] { modHelp::OpenHomePage(App()); };
}

void frmMDI::Form_Load() {
    LayOutLauncher();
}

void frmMDI::Form_Unload(int& Cancel) {
    (void)Cancel;
    ExitApplication(App());
}

void frmMDI::LayOutLauncher() {
    const double screen = App().Svc().screen->WidthTwips();
    auto centre = [screen](Control& c) { c.SetLeft(int((screen - c.Width()) / 2)); };
    centre(lblZenthoraBanner);
    centre(picButtonContainer);
    for (int i = 0; i <= 6; ++i)
        centre(lblCaption(i));
    cmdMdiExit.SetLeft(int(screen - (cmdMdiExit.Width() + 120)));
}

void frmMDI::CloseAllSubjects() {
    for (const std::string& name : subjects_.windows)
        App().Unload(name);
    for (const std::string& name : subjects_.dialogs)
        App().Unload(name);
}

void frmMDI::OpenSubjectByButton(int Index) {
    CloseAllSubjects();
    picMain.SetVisible(false);
    if (Index >= 0 && Index <= 3)
        ShowSubject(subjects_.windows[std::size_t(Index)]);
}

void frmMDI::OpenSubjectByLabel(int Index) {
    CloseAllSubjects();
    if (Index >= 3 && Index <= 6) {
        picMain.SetVisible(false);
        ShowSubject(subjects_.windows[std::size_t(Index - 3)]);
    }
}

void frmMDI::ShowSubject(const std::string& window) {
    Form& form = App().Show(window);
    const double screen = App().Svc().screen->WidthTwips();
    form.Me().SetLeft(int((screen - form.Me().Width()) / 2));
    form.Me().SetTop(0);
}

void frmMDI::lblCaption_MouseMove(int Index) {
    if (Index >= 3 && Index <= 6)
        lblCaption(Index).SetFontUnderline(true);
}

void frmMDI::picMain_MouseMove() {
    for (int i = 0; i <= 6; ++i)
        lblCaption(i).SetFontUnderline(false);
}

} // namespace quillane
