#include "files/sample_form.h"

#include "core/main_screen.h"
#include "core/taxon_name.h"

void SampleForm::begin(std::string label)
{
    Label1.caption = std::move(label);
    Text1.text.clear();
    Text2.text.clear();
    for (int item = 1; item <= infoItems; ++item) {
        Label3[item].caption = frmMain.Label10[item].caption;
        Text3[item].text = noText;
    }
}

void SampleForm::enterInfo(int item)
{
    if (Text3[item].text == noText)
        Text3[item].text.clear();
}

void SampleForm::leaveInfo(int item)
{
    if (Text3[item].text.empty())
        Text3[item].text = noText;
}
