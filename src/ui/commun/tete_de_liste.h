#pragma once
#include <QString>

class QHeaderView;

/// The title as it stands over a column of that width: on two lines when it does not fit on one and has a
/// blank where it can be parted.
QString TitreEnLignes(const QString& titre, int largeur);

/// What the title of a column takes on one line, with the arrow of the column that orders the list.
int LargeurDuTitre(const QHeaderView& tete, int colonne);

/// From now on the head has room for two lines as long as a title needs them.
void SuivreTitres(QHeaderView& tete);
