#pragma once
// The maker's web pages, the Help menu that every window carries, its link
// labels, and the update reminder.
#include "common/Application.h"

#include <string>

namespace quillane::modHelp {

// The two sites the program links to.
inline constexpr const char* kProductSite = "https://quillane.zenthora.net";
inline constexpr const char* kMakerSite = "https://www.zenthora.net";

void OpenOnlineHelp(Application& app);
void OpenHomePage(Application& app);
void OpenUpdatePage(Application& app);
void OpenFullBrandPage(Application& app);
void OpenCoBrandPage(Application& app);

inline constexpr const char* kFullBrandText =
    "Home Business Opportunity. Start your own Internet business and make money online. Get this "
    "software "
    "fully branded for your website. Click here for more details.";
inline constexpr const char* kCoBrandText =
    "Co-brand this software for your site.  Increase loyalty and traffic to your site. Put your "
    "site's name "
    "&&  link here. See \"Help\" for details.    Click Here for more info on co-branding.";
inline constexpr const char* kForumText =
    "Talk astrology, numerology, tarot and runes with fellow learners on the Zenthora forums";

// How one window names the entries of its Help menu.
struct HelpMenuNames {
    std::string separator1 = "mnuSep1";
    std::string separator2 = "mnuSep2";
    std::string makeMoney = "mnuMakeMoney";
    std::string updateCaption = "Check for Software &Update";
};

// Adds mnuHelp and its entries to the form, wired to their pages.
void AddHelpMenu(Form& form, const HelpMenuNames& names = {});

// Adds the link labels of a subject window: lblFullBrand, lblCobrand and the
// forum advertisement under the given name, in the given container.
void AddSubjectLinks(Form& form, const std::string& forumLabel, Control* container = nullptr);

// Reminds the user at most once a fortnight to look for an update.
void CheckForUpdateReminder(Application& app);

} // namespace quillane::modHelp
