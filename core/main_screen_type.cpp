#include "core/main_screen_type.h"

#include "core/number_text.h"
#include "core/taxon_name.h"

MainScreen::MainScreen()
{
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        Text1[slot].text = noText;
        Text2[slot].text = "0";
        Text2[slot].fontSize = 9;
        Label1[slot].caption = decimalText(slot);
        Label1[slot].visible = false;
        Label1[slot].enabled = false;
    }
    Label1[0].caption = "Sample name: ";
    Text1[0].text = Combo2.text = "-9999";
    Label4.caption = "1/1";
    Label2[0].caption = "All total:";
    Label2[1].caption = "Subtotal-1:";
    Label2[2].caption = "Subtotal-2:";
    mnuPercentAll.caption = "% by All total";
    mnuPercentSub1.caption = "% by Subtotal-1";
    mnuPercentSub2.caption = "% by Subtotal-2";
    for (TextBox& sum : Text3)
        sum.text = "0";
    Option1[0].selected = true;

    Text4.text = noText;
    Text4.enabled = false;
    for (int item = 1; item <= infoItems; ++item) {
        Text5[item].text = noText;
        Text5[item].enabled = false;
        Label10[item].caption = "Additional info-" + decimalText(item) + ":";
        Command7[item].visible = false;
    }
    for (Label& date : Label14)
        date.caption = noText;
    Text6.text = "File location: ---";

    for (Button* button : {&Command2[0], &Command3[1], &Command5[0], &Command5[1]})
        button->enabled = false;
    for (MenuEntry* entry : {&mnuFinishAmend, &mnuTaxaFromList, &mnuSave, &mnuSaveHistory, &mnuNext, &mnuUndo,
                             &mnuReset, &mnuNew, &mnuDiagramStyles, &mnuFavorite})
        entry->enabled = false;
    mnuItalic.checked = true;
    mnuFontSize[8].checked = true;
    mnuAlign[0].checked = true;
}
