#pragma once

/// How the taxon names look: italics, size, and which end of a long name shows.

/// Genera and species in italics; family names (ending in "ae" or "AE") and cells without a taxon upright. A
/// sheet in which no name would be upright is a list of codes and has no italics at all.
void ApplyItalics();

void mnuItalic_Click();
/// `points`: 6 to 10.
void mnuFontSize_Click(int points);
/// 0: long names show their start; 1: their end. The alignment itself stays.
void mnuAlign_Click(int side);
/// Flips the alignment of all names.
void Command8_Click();
