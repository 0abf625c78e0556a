#include "frmAbout.h"

#include "common/Application.h"
#include "modHelp.h"

namespace quillane {

frmAbout::frmAbout(Application& app)
    : Form(app, "frmAbout"), Label2(Add(ControlKind::Label, "Label2")),
      Label1(Add(ControlKind::Label, "Label1")), Label3(Add(ControlKind::Label, "Label3")),
      lblCobrand(Add(ControlKind::Label, "lblCobrand")),
      lblHomePage(Add(ControlKind::Label, "lblHomePage")),
      cmdOK(Add(ControlKind::CommandButton, "cmdOK")) {
    Me().SetCaption("Quillane v1.20");
    Label2.SetCaption("Quillane v1.20");
    Label1.SetCaption("Quillane is a collection of learning softwares teaching you the basics of "
                      "Astrology, Numerology, Tarot "
                      "and Runes. This is a learn-and-test yourself kind of learning software. "
                      "This software is a simple and "
                      "useful aid in the study of the above mentioned topics. This can help "
                      "beginners learn and test their "
                      "understanding of the subject.");
    Label3.SetCaption(
        "Home Business Opportunity. Start your own Internet business and make money online. Get "
        "this software fully branded for your website. ");
    lblCobrand.SetCaption("Click here for more details.");
    lblHomePage.SetCaption("Click here to visit www.zenthora.net");
    cmdOK.SetCaption("&OK");

    // In spite of its name, this label leads to the full-brand page.
    lblCobrand.Click = [this] { modHelp::OpenFullBrandPage(App()); };
    lblHomePage.Click = [this] { modHelp::OpenHomePage(App()); };
    cmdOK.Click = [this] { App().Unload("frmAbout"); };
}

} // namespace quillane
