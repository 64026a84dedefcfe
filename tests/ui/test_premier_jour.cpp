// A school sets itself up from an empty database, in the present year, by keys.
#include <QMenu>
#include <QTimer>

#include "screens/documents/frm_apercu.h"
#include "support/fichier_registre.h"
#include "ui/documents/vue_apercu.h"
#include "ui/reglages_essai.h"

namespace {

/// All by keys, sent to whatever has the focus.
class PremierJour : public TReglagesEssai {
 protected:
  void Ecrire(const QString& texte) { QTest::keyClicks(&Programme.LaMain(), texte); }
  /// Over what the field holds.
  void Remplacer(const QString& champ, const QString& texte) {
    Programme.Jusqu(champ);
    Programme.Presser({Qt::CTRL | Qt::Key_A});
    Ecrire(texte);
  }
  void Activer(const QString& bouton) {
    Programme.Jusqu(bouton);
    Programme.Presser({Qt::Key_Space});
  }
  using TReglagesEssai::Activer;
  /// The button opens a menu, whose entry the arrows choose.
  void ActiverMenu(const QString& bouton, const QString& entree) {
    Programme.Jusqu(bouton);
    QWidget& ici = Programme.LaMain();
    QTimer::singleShot(0, &ici, [entree] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      const auto choisie = [menu] {
        return menu->activeAction() != nullptr ? menu->activeAction()->text() : QString();
      };
      for (int i = 0; i < 9 && choisie() != entree; ++i) QTest::keyClick(menu, Qt::Key_Down);
      EXPECT_EQ(choisie(), entree);
      QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::keyClick(&ici, Qt::Key_Space);
    QCoreApplication::processEvents();
  }
  void Choisir(const QString& liste, int indice) {
    Programme.Jusqu(liste);
    Programme.Presser({Qt::Key_Home});
    for (int i = 0; i < indice; ++i) Programme.Presser({Qt::Key_Down});
  }
  void OuvreFichier(const QString& titre, const QString& chemin) {
    Programme.Dialogues.Fait(titre, [this, chemin](QWidget& dialogue) {
      // Pasted: what is typed there is changed by the proposals as they come.
      dialogue.findChild<QLineEdit*>("fileNameEdit")->setText(chemin);
      Programme.Presser({Qt::Key_Return});
    });
  }
};

}  // namespace

TEST_F(PremierJour, FromNothingToTheFirstInvoiceByKeyboardAlone) {
  Programme.Horloge.Moment = EncodeDate(2026, 11, 25) + EncodeTime(9, 0, 0);
  Programme.Demarrer();
  EXPECT_TRUE(Programme.EstIci("Année scolaire : Choisir l'année"))
      << Programme.LaMain().accessibleName().toStdString();
  Programme.Dialogues.Fait("Quelle année scolaire",
                           [this](QWidget&) { Programme.Presser({Qt::Key_Return}); });
  Programme.Presser({Qt::Key_Space});
  EXPECT_EQ(Globals.AnneeScolaire, 2026);

  Activer("Mon école : Ouvrir");
  Remplacer("edNomEcole", "École des Tilleuls");
  Remplacer("edCompteBancaire", "BE68 5390 0754 7034");
  Programme.Presser({Qt::CTRL | Qt::Key_1});
  EXPECT_EQ(Parametre(11), "BE68 5390 0754 7034") << "a key that leaves the screen stores the field";

  TFichierRegistre registre(1);
  for (int ligne = 1; ligne < 10; ++ligne) registre.Mettre(ligne, 16, "2026/09/01");
  Activer("Importation : Importer les élèves");
  OuvreFichier("Ouvrir le fichier de données", registre.Ecrire(Base));
  Activer("Etape n°1 : Ouvrir le fichier de données");
  Activer("Etape n°2 : Démarrer le transfert des données");
  EXPECT_EQ(Etat(), "9 élèves transférés : 9 nouveaux, 0 mis à jour");

  Programme.Presser({Qt::CTRL | Qt::Key_1});
  Activer("Services : Encoder les tarifs");
  Programme.Presser({Qt::Key_F7});
  Choisir("cmbTypeFamille", 1);
  Choisir("cmbTypeJour", 6);
  Remplacer("edHeureDebut", "7:00");
  Remplacer("edHeureFin", "8:30");
  Choisir("cmbTypeScan", 1);
  Remplacer("edCout", "1,5");
  Choisir("cmbTypeForfait", 1);
  Remplacer("edCout2eEnfant", "1");
  Programme.Presser({Qt::Key_F9});
  EXPECT_EQ(Base.Rangees("SELECT TYPE_FAMILLE, TYPE_JOUR, COUT, TYPE_FORFAIT FROM TARIF_GARDERIE"),
            QStringList("1;6;1.5000;1"));

  Programme.Presser({Qt::CTRL | Qt::Key_1});
  Activer("Paramètres : Ouvrir");
  Remplacer("memFacture", "Merci de payer avec");

  Programme.Presser({Qt::CTRL | Qt::Key_1});
  Activer("Frais : Encoder les frais");
  Programme.Presser({Qt::Key_F7});
  Ecrire("Piscine");
  Remplacer("edMontant", "12,5");
  Choisir("cmbConcerne", 0);
  Choisir("cmbMois", 3);
  Programme.Jusqu("Classes concernées");
  Programme.Presser({Qt::Key_Home, Qt::Key_Space, Qt::Key_F9});
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM FRAIS_ELEVE"), "9") << Etat().toStdString();

  Programme.Presser({Qt::CTRL | Qt::Key_1, Qt::ALT | Qt::Key_P});
  QTRY_COMPARE(Programme.Main().CommandeOuverte()->Nom(), u"Présences");  // a mnemonic clicks a moment later
  OuvreFichier("Importer un fichier de présence",
               Base.Fichier("scans.txt", "12341;1;20261103;073000;1\n12341;1;20261104;074500;1\n"));
  ActiverMenu("Source : scanner local", "Importer un fichier de présence");
  Programme.Dialogues.Attend("Les présences ont été mémorisées.");
  Activer("Etape n°2 : Mémoriser les présences");
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM PRESENCES"), "2");

  Programme.Presser({Qt::ALT | Qt::Key_L});
  QTRY_COMPARE(Programme.Main().CommandeOuverte()->Nom(), u"Élèves");
  Programme.Presser({Qt::Key_F3});
  Ecrire("nom");
  EXPECT_EQ(Globals.EleveCourant->NomComplet(), "Nom 1234-1 Zoé");
  QString facture;
  Programme.Dialogues.Fait("Assistant d'impression", [this](QWidget&) {
    for (int i = 0; i < 20 && !Programme.EstIci("Facture"); ++i) Programme.Presser({Qt::Key_Down});
    Programme.Presser({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return});
  });
  Programme.Dialogues.Fait("Aperçu", [&](QWidget& fenetre) {
    auto& apercu = dynamic_cast<VueApercu&>(fenetre);
    QTRY_VERIFY(!apercu.Form().Document().Pages.empty());
    facture = apercu.Form().Document().TexteDePage(0);
    Programme.Presser({Qt::Key_Escape});
  });
  Programme.Presser({Qt::Key_F8});
  for (const char* texte : {"Nom 1234-1", "3,00", "Piscine", "12,50", "Merci de payer avec"})
    EXPECT_TRUE(facture.contains(texte)) << texte << " in " << facture.toStdString();
}
