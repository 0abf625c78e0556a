#pragma once
// The About box: modal, fixed size.
#include "common/Form.h"

namespace quillane {

class frmAbout : public Form {
public:
    explicit frmAbout(Application& app);

    Control& Label2;
    Control& Label1;
    Control& Label3;
    Control& lblCobrand;
    Control& lblHomePage;
    Control& cmdOK;
};

} // namespace quillane
