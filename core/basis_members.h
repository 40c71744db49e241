#pragma once

/// Underlines the taxa of the subtotal that is the % basis; none if the basis is all individuals.
void underlineBasis();
