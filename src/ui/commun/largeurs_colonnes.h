#pragma once
#include <vector>

/// What a column would take, and the least that it can do with; in pixels.
struct TBesoinColonne {
  int Voulue;
  int Moindre;
};

/// The widths for so much room: the flexible column `souple` takes what is left. Where that is less than it
/// would take, the others give way, each in proportion to what it can spare. At its least it gives no more, and
/// the sum passes the room.
std::vector<int> RepartirLargeurs(const std::vector<TBesoinColonne>& colonnes, int souple, int place);
