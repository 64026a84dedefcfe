#pragma once
#include <QLabel>
#include <QTableWidget>

#include "ui/reglages_essai.h"

/// The meal screens of a small school: ALVES and BODART in P1 A, MARIN in M1 B; a meal costs 2,20 in the
/// nursery section and 2,60 in the primary one.
class TRepasEssai : public TReglagesEssai {
 protected:
  void SetUp() override {
    Ecole.parametre(41, "1");
    Ecole.parametre(101, "2,20");
    Ecole.parametre(102, "2,60");
    Ecole.unEleve().nomme("ALVES", "Rui").enClasse("P1", "A");
    Ecole.unEleve().nomme("BODART", "Léa").enClasse("P1", "A");
    Ecole.unEleve().nomme("MARIN", "Zoé").enClasse("M1", "B");
  }
  void ChoisirClasse(int indice) {
    auto& classes = Nomme<QComboBox>("Classe");
    Aller(classes);
    QTest::keyClick(&classes, Qt::Key_Home);
    for (int i = 0; i < indice; ++i) QTest::keyClick(&classes, Qt::Key_Down);
    QCoreApplication::processEvents();
  }
  /// Space and letters where the hand is.
  void Frapper(const QString& touches) {
    for (const QChar touche : touches) QTest::keyClick(QApplication::focusWidget(), touche.toLatin1());
    QCoreApplication::processEvents();
  }
  bool Montre(const QString& texte) {
    for (const QLabel* libelle : Programme.Fenetre().findChildren<QLabel*>())
      if (libelle->isVisible() && libelle->text() == texte) return true;
    return false;
  }
  static QStringList Lignes(const VueGrille& vue) { return ::Lignes(vue.Grille()); }
  QStringList Tickets() {
    return Base.Rangees(
        "SELECT ELEVE_ID, DATE_ACHAT, DATE_UTILISATION, VALEUR, TYPE_PAIEMENT FROM TICKET ORDER BY "
        "TICKET_ID");
  }
  QStringList Commandes() {
    return Base.Rangees(
        "SELECT ELEVE_ID, DATE_COMMANDE, FLG_REPAS || FLG_DAGO || FLG_SANDWICH || FLG_JAMBON || FLG_FROMAGE "
        "|| FLG_JAMBON_FROMAGE || FLG_BEURRE || FLG_MAYONNAISE FROM COMMANDE ORDER BY 2, 1");
  }
};
