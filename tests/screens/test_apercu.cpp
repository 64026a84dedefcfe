#include "documents/catalogue.h"
#include "forms/grille.h"
#include "screens/documents/frm_apercu.h"
#include "support/controleur_essai.h"
#include "support/outil.h"

namespace {

/// The invoices of a school of two classes, "P1 A" and "P2 A".
struct Apercu : TEssaiEcole {
  /// So many pupils a class, called "A0", "A1"... and "B0", "B1"...
  void Ecole(int parClasse) {
    const int frais = ecole.frais(u"Classes de mer"_s, u"185"_s, 10);
    for (const char16_t classe : {u'A', u'B'})
      for (int i = 0; i < parClasse; ++i)
        ecole.unEleve()
            .nomme(QChar(classe) % QString::number(i), u"Élise"_s)
            .enClasse(classe == u'A' ? u"P1"_s : u"P2"_s, u"A"_s)
            .doit(frais);
    controleur.Charger();
  }
  /// The invoices of October for all, in that order of the pupils.
  TRapport& Factures(bool melanges = false) {
    TChoixDocument choix;
    choix.DateDebut = J("2016-10-01");
    choix.DateFin = J("2016-10-31");
    choix.Eleves = Globals.Eleves->Tous();
    if (melanges) std::swap(choix.Eleves.front(), choix.Eleves.back());
    resultat = FaireDocument(ContexteDesGlobals(controleur.Horloge), *TrouverTitre(u"Facture"), choix);
    return resultat.Rapports.at(0);
  }
  static QStringList Entrees(const TFrmApercu& form) {
    QStringList textes;
    for (const TEntreeNavigateur& e : form.Navigateur())
      textes += QString(e.Niveau, u'>') % e.Texte % u' ' % QString::number(e.Page);
    return textes;
  }
  static QString Texte(const TDocumentPrepare& document) {
    QString texte;
    for (int page = 0; page < static_cast<int>(document.Pages.size()); ++page)
      texte += document.TexteDePage(page) % u'\f';
    return texte;
  }
  /// Notes where the form sends its view: "page" or "page@x".
  void Suivre(TFrmApercu& form) {
    suivi = form.SurMontrer.Suivre([this](int page, const QRectF& place) {
      montre += QString::number(page) % (place.isNull() ? u""_s : u'@' % QString::number(qRound(place.y())));
    });
  }

  TControleurEssai controleur{base};
  TContexteApercu contexte{base.Dialogues, base.Reglages, controleur.Horloge};
  TResultat resultat;
  QStringList montre;
  TLien suivi;
};

}  // namespace

TEST_F(Apercu, ClassesThatAreNotTogetherAreNoHeads) {
  Ecole(2);
  TFrmApercu form(contexte, Factures(true));
  form.Terminer();
  EXPECT_EQ(Entrees(form), (QStringList{u"B1 Élise 0"_s, u"A1 Élise 1"_s, u"B0 Élise 2"_s, u"A0 Élise 3"_s}));
}

TEST_F(Apercu, SearchAndNext) {
  Ecole(2);
  TFrmApercu form(contexte, Factures());
  Suivre(form);
  EXPECT_FALSE(form.Complet()) << "opens before all is laid out";
  form.Chercher(u"b1 elise"_s);
  EXPECT_EQ(form.TexteRecherche(), u"Recherche…"_s);
  form.Terminer();
  ASSERT_FALSE(montre.isEmpty()) << "shown as soon as its page is there";
  EXPECT_TRUE(montre[0].startsWith(u"3@"_s));

  form.AllerPage(1);
  form.Chercher(u"classes de mer"_s);
  const auto nombre = static_cast<int>(form.Recherche().Trouvailles().size());
  const int premiere = form.Recherche().Courante();
  EXPECT_EQ(form.PageCourante(), 1) << "from the page in hand on";
  EXPECT_EQ(form.TexteRecherche(), QString::number(premiere + 1) % u" sur "_s % QString::number(nombre));
  for (int i = 0; i < nombre; ++i) form.ChercherSuivant();
  EXPECT_EQ(form.Recherche().Courante(), premiere) << "round the end";
  form.ChercherSuivant(-1);
  EXPECT_EQ(form.Recherche().Courante(), premiere - 1);
  form.Chercher(u"absent"_s);
  EXPECT_EQ(form.TexteRecherche(), u"Introuvable"_s);
  form.ChercherSuivant();
  form.Chercher({});
  EXPECT_EQ(form.TexteRecherche(), QString());
}

TEST_F(Apercu, Zooms) {
  Ecole(1);
  TFrmApercu form(contexte, Factures());
  EXPECT_EQ(form.TexteZoom(), u"100 %"_s);
  form.ChangerVue({1000, 600});
  const std::tuple<const char16_t*, bool, const char16_t*> cas[] = {
      {u"85 %", true, u"85 %"},         {u" 130", true, u"130 %"},
      {u"largeur", true, u"122 %"},     {u"abc", false, u"122 %"},
      {u"Page entière", true, u"51 %"}, {u"0 %", false, u"51 %"},
      {u"9000", true, u"400 %"},        {u"1", true, u"25 %"}};
  for (const auto& [choix, lu, zoom] : cas) {
    EXPECT_EQ(form.ZoomerTexte(QString::fromUtf16(choix)), lu);
    EXPECT_EQ(form.TexteZoom(), QString::fromUtf16(zoom));
  }
  form.ZoomMoins();
  EXPECT_EQ(form.TexteZoom(), u"25 %"_s);
  form.Zoomer(TModeZoom::Largeur);
  form.ZoomPlus();
  EXPECT_EQ(form.TexteZoom(), u"125 %"_s);
  form.ZoomMoins();
  EXPECT_EQ(form.TexteZoom(), u"100 %"_s);
}

TEST_F(Apercu, SavedAndOpenedAgain) {
  Ecole(2);
  TFrmApercu form(contexte, Factures());
  base.Dialogues.Saisit(u"Enregistrer le rapport"_s, base.Chemin(u"octobre"_s));
  form.btnEnregistrerClick();
  ASSERT_TRUE(QFile::exists(base.Chemin(u"octobre.rap"_s)));
  EXPECT_EQ(form.NiveauEtat, TNiveauEtat::Succes);
  const QString texte = Texte(form.Document());
  const QStringList entrees = Entrees(form);

  TRapport autre(u"Vide"_s, u"Facture"_s);
  TFrmApercu rouvert(contexte, autre);
  EXPECT_TRUE(rouvert.PapierModifiable());
  base.Dialogues.Saisit(u"Ouvrir un rapport"_s, base.Chemin(u"octobre.rap"_s));
  rouvert.btnOuvrirClick();
  EXPECT_TRUE(rouvert.Complet());
  EXPECT_EQ(Texte(rouvert.Document()), texte);
  EXPECT_EQ(Entrees(rouvert), entrees);
  EXPECT_EQ(rouvert.TitreNavigateur(), u"4 factures"_s) << "its classes are no invoices";
  EXPECT_FALSE(rouvert.PapierModifiable()) << "its data are not in the file";

  base.Dialogues.Saisit(u"Ouvrir un rapport"_s, base.Fichier(u"faux.rap"_s, "rien"));
  base.Dialogues.Attend(u"Ce fichier n'est pas un rapport enregistré"_s);
  rouvert.btnOuvrirClick();
  EXPECT_EQ(Texte(rouvert.Document()), texte) << "what was shown stays";
  base.Dialogues.Saisit(u"Enregistrer le rapport"_s, base.Chemin(u"absent/octobre.rap"_s));
  base.Dialogues.Attend(u"octobre.rap"_s);
  rouvert.btnEnregistrerClick();
}

TEST_F(Apercu, AnotherPaperAndBack) {
  Ecole(2);
  TFrmApercu form(contexte, Factures());
  form.Terminer();
  const QString texte = Texte(form.Document());
  const TPapier a4 = form.Papier();
  EXPECT_EQ(form.TextePapier(), u"A4, portrait"_s);
  EXPECT_NEAR(a4.Marge, 10, 0.2);
  form.AllerPage(1);
  form.ChangerPapier({{297, 210}, 10});
  EXPECT_EQ(form.TextePapier(), u"A4, paysage"_s);
  form.ChangerPapier({{210, 100}, 10});
  form.Terminer();
  EXPECT_GT(form.Document().Pages.size(), 4U) << "lower pages hold less";
  form.ChangerPapier(a4);
  form.Terminer();
  EXPECT_EQ(Texte(form.Document()), texte);
  form.ChangerPapier({{85, 54}, 5});
  EXPECT_EQ(form.TextePapier(), u"85 × 54 mm, paysage"_s);
}

TEST_F(Apercu, WithoutTemplateNothingOpens) {
  TRapport rapport(u"Attestation"_s, u"Inconnu"_s);
  EXPECT_THROW(TFrmApercu(contexte, rapport), Exception);
}
