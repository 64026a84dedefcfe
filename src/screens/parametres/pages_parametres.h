#pragma once
#include "screens/parametres/champs_parametres.h"

struct TPageDecrite {
  QString Titre;
  TTableChamps<TParametres> Champs;
};

/// The fields of the settings, page by page.
std::vector<TPageDecrite> PagesDecrites();
/// What the text of a setting will not do, or not yet, though it was stored; "" for nothing.
QString AvisParametre(const TChamp& champ, const QString& texte);
