#include "ui/commun/tete_de_liste.h"

#include <QHeaderView>
#include <QStyle>

#include "ui/commun/theme.h"

namespace {

/// What stands beside the title of a column, as the style places it.
int AutourDuTitre(const QHeaderView& tete, int colonne) {
  const int marge = tete.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &tete);
  const int fleche = tete.style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, &tete) + 2;
  return 2 * marge + (tete.sortIndicatorSection() == colonne ? fleche : 0);
}

QString TitreDe(const QHeaderView& tete, int colonne) {
  return tete.model()->headerData(colonne, Qt::Horizontal).toString();
}

void Ajuster(QHeaderView& tete) {
  bool deux = false;
  for (int colonne = 0; colonne < tete.count() && !deux; ++colonne) {
    const int place = tete.sectionSize(colonne) - AutourDuTitre(tete, colonne);
    deux = TitreEnLignes(TitreDe(tete, colonne), place).contains(u'\n');
  }
  const int hauteur = deux ? 2 * QFontMetrics(Theme::Gras()).height() + Theme::Px(8) : 0;
  if (tete.minimumHeight() == hauteur) return;
  tete.setMinimumHeight(hauteur);
  emit tete.geometriesChanged();
}

}  // namespace

QString TitreEnLignes(const QString& titre, int largeur) {
  const QFontMetrics mesures(Theme::Gras());
  if (mesures.horizontalAdvance(titre) <= largeur) return titre;
  qsizetype coupure = titre.lastIndexOf(u' ');
  while (coupure > 0 && mesures.horizontalAdvance(titre.first(coupure)) > largeur)
    coupure = titre.lastIndexOf(u' ', coupure - 1);
  return coupure > 0 ? QString(titre).replace(coupure, 1, u'\n') : titre;
}

int LargeurDuTitre(const QHeaderView& tete, int colonne) {
  return QFontMetrics(Theme::Gras()).horizontalAdvance(TitreDe(tete, colonne)) + 1 +
         AutourDuTitre(tete, colonne);
}

void SuivreTitres(QHeaderView& tete) {
  const auto ajuster = [&tete] { Ajuster(tete); };
  QObject::connect(&tete, &QHeaderView::sectionResized, &tete, ajuster);
  QObject::connect(&tete, &QHeaderView::sortIndicatorChanged, &tete, ajuster);
  ajuster();
}
