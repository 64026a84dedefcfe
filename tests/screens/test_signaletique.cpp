#include "screens/signaletique_essai.h"

#include "pupils/photo.h"
#include "screens/attendance/frm_ajout_releve.h"
#include "screens/payments/frm_attribution_compte.h"
#include "screens/payments/frm_date_paiement.h"
#include "screens/payments/frm_paiement.h"

using TSignaletique = TSignaletiqueEssai;

TEST_F(TSignaletique, ReleveDuMoisParService) {
  TFrmSignaletique& fiche = Ouvrir(rose);
  EXPECT_EQ(Lignes(fiche.Releve.Grille),
            (QStringList{u"#Garderie du matin|2 relevés|||2,00 €"_s, u"|lun. 03/10|07:32||1,00 €"_s,
                         u"|mar. 04/10|07:40||1,00 €"_s, u"#Garderie du midi|1 relevé|||0,50 €"_s,
                         u"|lun. 03/10|12:15||0,50 €"_s, u"#Garderie du soir|1 relevé|||2,25 €"_s,
                         u"|lun. 03/10||16:48|2,25 €"_s, u"#Garderie mercredi|1 relevé|||3,00 €"_s,
                         u"|mer. 05/10|14:00|15:10|3,00 €"_s, u"#Etudes|1 relevé|||4,00 €"_s,
                         u"|mar. 04/10|15:45||4,00 €"_s, u"#Repas|1 relevé|||5,00 €"_s,
                         u"|mar. 04/10|12:00||5,00 €"_s, u"#Soupes|1 relevé|||0,75 €"_s,
                         u"|mar. 04/10|12:00||0,75 €"_s}));
  EXPECT_EQ(Euros(fiche.Releve.Total), "17.5000");
  EXPECT_EQ(fiche.TexteSansReleve(), QString());

  fiche.cmbMoisChange(4);
  EXPECT_EQ(fiche.NomReleve(), (QStringList{"LAMBERT Élise", "janvier 2017"}));
  EXPECT_EQ(fiche.NomFrais(), (QStringList{"LAMBERT Élise", "2016 - 2017"}));
  EXPECT_EQ(Lignes(fiche.Releve.Grille),
            (QStringList{u"#Garderie du matin|1 relevé|||1,00 €"_s, u"|lun. 09/01|07:30||1,00 €"_s}));
  fiche.cmbMoisChange(5);
  EXPECT_EQ(fiche.TexteSansReleve(), u"Aucun relevé en février"_s);
  EXPECT_EQ(Euros(fiche.Releve.Total), "0.0000");
}

TEST_F(TSignaletique, FraisEtPaiementsDansLOrdre) {
  const TFrmSignaletique& fiche = Ouvrir(rose);
  EXPECT_EQ(Lignes(fiche.Frais.Grille),
            (QStringList{u"Classes de mer|Février|185,00 €|50,00 €|Partiel"_s,
                         u"Photocopies|Septembre|25,00 €|25,00 €|Payé"_s, u"Stage|Octobre|3,00 €||Dû"_s,
                         u"Voyage|Mai|400,00 €||Prévision"_s, u"Services octobre|Octobre|17,50 €||Dû"_s,
                         u"Services novembre|Novembre|1,00 €|1,00 €|Payé"_s,
                         u"Services janvier|Janvier|1,00 €|0,40 €|Partiel"_s,
                         u"Acompte|Novembre||30,00 €|Reçu"_s}));
  // The forecast stands in the list and in no total.
  EXPECT_EQ(fiche.Frais.Pied[0].join(u'|'), u"Total||232,50 €|106,40 €"_s);
  EXPECT_EQ(fiche.Frais.Pied[1].join(u'|'), u"Balance|||-126,10 €"_s);
  EXPECT_EQ(fiche.Solde(), Globals.EleveCourant->Solde(true, true));
}

// The year is loaded again: nobody is selected, and nothing of the pupil who went stays.
TEST_F(TSignaletique, SansEleve) {
  monde.Contexte.Etiquettes.Dossier = base.Chemin(u"sans-modeles"_s);
  TFrmSignaletique& fiche = Ouvrir(rose);
  monde.Essai.Charger();
  EXPECT_TRUE(Diffuser(TCodeMessage::EleveChange, fiche));
  EXPECT_FALSE(fiche.AvecEleve());
  EXPECT_EQ(fiche.NomComplet() + fiche.TexteSansReleve(), QString());
  EXPECT_FALSE(fiche.Champs().Actifs());
  EXPECT_EQ(fiche.Releve.Grille.NombreLignes() + fiche.Frais.Grille.NombreLignes(), 0);
  fiche.cmbMoisChange(3);
  EXPECT_TRUE(Diffuser(TCodeMessage::Imprimer, fiche)) << "classes can be printed all the same";
  ASSERT_EQ(assistant.Demande.Titres.size(), 17U);
  EXPECT_EQ(assistant.Demande.Titres[0].Empechement, u"modèle absent : EtiquetteEleve-99012.label");
  EXPECT_EQ(fiche.Titre(), u"Choisissez un élève dans la liste");
  monde.Essai.Charger(2018);
  EXPECT_EQ(fiche.Titre(), u"Aucun élève en 2018 - 2019") << "there is nobody to choose";
}

TEST_F(TSignaletique, UnePhotoIllisibleNeCachePasLEleve) {
  base.Sql(u"INSERT INTO ELEVE_PHOTO (ELEVE_PHOTO_ID, ELEVE_ID, PHOTO) VALUES (1, %1, 'zut')"_s.arg(rose.Id));
  TFrmSignaletique& fiche = Ouvrir(rose);
  EXPECT_TRUE(fiche.Photo().isNull());
  EXPECT_EQ(monde.Etats.size(), 1);
  EXPECT_EQ(fiche.Frais.Grille.NombreLignes(), 8);
  fiche.RecevoirMessage({TCodeMessage::EleveChange, {}});
  base.Dialogues.Repond(u"Voulez-vous effacer cette photo ?"_s, true);
  fiche.Effacerlaphoto1Click();
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM ELEVE_PHOTO"_s), u"0");
}

TEST_F(TSignaletique, MoisDuJour) {
  const std::pair<const char*, int> cas[] = {{"2016-09-01", 0}, {"2016-12-31", 3}, {"2017-01-01", 4},
                                             {"2017-06-30", 9}, {"2017-07-01", 0}, {"2017-08-31", 0}};
  for (const auto& [jour, indice] : cas) {
    monde.Essai.Horloge.Moment = J(jour) + 0.5;
    EXPECT_EQ(TFrmSignaletique(monde.Contexte).IndiceMois(), indice) << jour;
  }
  TFrmSignaletique& fiche = Ouvrir(rose);
  fiche.cmbMoisChange(6);
  Choisir(vide.Id);
  EXPECT_EQ(fiche.IndiceMois(), 6);
}

TEST_F(TSignaletique, ActivitesExterieures) {
  EXPECT_FALSE(Ouvrir(rose).ActivitesExtVisibles() || ecran->ActivitesVisibles());
  rose.suit(ecole.activite(u"16:00"_s, u"17:00"_s), u"14"_s);
  const std::pair<const char16_t*, const char16_t*> cas[] = {
      {u"1", u"Activités extérieures (du 28 septembre au 30 juin)"},
      {u"2", u"Activités extérieures (du 5 octobre au 30 juin)"},
      {u"3", u""}};
  for (const auto& [parametre, titre] : cas) {
    ecole.parametre(100, QString::fromUtf16(parametre));
    const TFrmSignaletique& fiche = Ouvrir(rose);
    EXPECT_EQ(fiche.TitreActivitesExt(), QString::fromUtf16(titre));
    EXPECT_EQ(fiche.JoursActivite(), (std::array{true, false, false, true, false}));
    EXPECT_TRUE(fiche.ActivitesVisibles());
    EXPECT_EQ(fiche.Activites()[0].Jours, fiche.JoursActivite());
  }
}

TEST_F(TSignaletique, LeChoixDeLAssistantFaitLeDocument) {
  ecole.parametre(32, u"1"_s);
  TFrmSignaletique& fiche = Ouvrir(rose);
  TChoixDocument choix;
  choix.DateDebut = J("2016-10-01");
  choix.DateFin = J("2016-10-31");
  monde.SurModale = [](TForm& form) { dynamic_cast<TFrmDatePaiement&>(form).Annuler(); };
  const auto apercus = [&](int eleve, int indice) {
    monde.Apercus.clear();
    choix.Eleves = {Globals.Eleves->TrouverParId(eleve)};
    choix.Indice = indice;
    assistant.Reponse = choix;
    EXPECT_TRUE(Diffuser(TCodeMessage::Imprimer, fiche));
    return monde.Apercus;
  };
  EXPECT_EQ(apercus(rose.Id, 6), QStringList()) << "no date: nothing is made, nothing is said";
  monde.SurModale = [](TForm& form) { dynamic_cast<TFrmDatePaiement&>(form).Valider(); };
  EXPECT_EQ(apercus(rose.Id, 6), QStringList{u"Relevé des frais effectifs"_s});
  EXPECT_EQ(apercus(rose.Id, 8), QStringList{u"Relevé détaillé des services"_s});
  base.Dialogues.Attend(u"Aucun relevé à imprimer."_s);
  EXPECT_EQ(apercus(vide.Id, 8), QStringList());
}

TEST_F(TSignaletique, LaGrilleDuMoisEstCelleDeTouteLEcole) {
  TFrmSignaletique& fiche = Ouvrir(vide);
  fiche.cmbMoisChange(1);
  fiche.SpeedButton3Click();
  EXPECT_EQ(monde.Apercus, QStringList{u"Accueil extrascolaire"_s});
  EXPECT_EQ(base.Dialogues.Attentes, 0);
}

// Its six titles are served by the list of sixteen: "Facture", the first, gives labels.
TEST_F(TSignaletique, LeCourrielEstServiParLaListeEntiere) {
  TFrmSignaletique& fiche = Ouvrir(rose);
  Diffuser(TCodeMessage::Courriel, fiche);
  EXPECT_EQ(assistant.Demande.Titres.size(), 6U);
  TChoixDocument choix;
  choix.Eleves = {Globals.EleveCourant};
  base.Dialogues.Attend(u"Impossible d'initialiser les pilotes d'impression."_s);
  EXPECT_TRUE(Diffuser(TCodeMessage::AssistantConfirme, fiche, choix));
  EXPECT_EQ(monde.Apercus, QStringList());
}

// What another workstation has deleted is told once, and stands in the way of nothing else.
TEST_F(TSignaletique, UneRangeeSupprimeeParUnAutrePoste) {
  TFrmSignaletique& fiche = Ouvrir(rose);
  base.Sql(u"DELETE FROM FRAIS_ELEVE WHERE LISTEFRAIS_ID = 3"_s);
  base.Dialogues.Attend(u"Cette ligne n'existe plus : un autre poste l'a supprimée."_s);
  fiche.grdListeFraisCocheClick(2);
  EXPECT_EQ(fiche.Frais.Grille.NombreLignes(), 7);
  fiche.grdListeFraisCocheClick(1);
  EXPECT_EQ(base.Valeur(u"SELECT MONTANT_VERSE FROM FRAIS_ELEVE WHERE LISTEFRAIS_ID = 2"_s), u"0.0000");
}

// Of a month that was paid twice the row that counts is shown, and taken back; what another workstation has
// paid meanwhile is not paid again.
TEST_F(TSignaletique, UnMoisPayeDeuxFois) {
  rose.mois(11, u"2"_s);
  TFrmSignaletique& fiche = Ouvrir(rose);
  EXPECT_EQ(Lignes(fiche.Frais.Grille)[5], u"Services novembre|Novembre|1,00 €|2,00 €|Payé"_s);
  fiche.grdListeFraisCocheClick(5);
  EXPECT_EQ(base.Rangees(u"SELECT MONTANT FROM PAIEMENTS WHERE MOIS = 11"_s), QStringList{u"1.0000"_s});

  fiche.grdListeFraisCocheClick(5);
  rose.mois(11, u"1"_s);
  base.Dialogues.Attend(u"Un autre poste vient de marquer ce mois comme payé. Relisez les données (F5)."_s);
  fiche.grdListeFraisCocheClick(5);
  EXPECT_EQ(base.Rangees(u"SELECT MONTANT FROM PAIEMENTS WHERE MOIS = 11"_s), QStringList{u"1.0000"_s});
}

TEST_F(TSignaletique, LeForfaitDeLaJourneeSuitLeRepas) {
  ecole.parametre(30, u"1"_s);
  TFrmSignaletique& fiche = Ouvrir(rose);
  const QString releves =
      u"SELECT TYPE_PRESENCE, HEURE_ENTREE, HEURE_SORTIE FROM PRESENCES WHERE DATE_RELEVE = '2016-10-%1' "
      "ORDER BY PRESENCE_ID"_s;
  const auto ajouter = [&](TDateTime jour, TDateTime entree, TDateTime sortie) {
    monde.Modale<TFrmAjoutReleve>([=](TFrmAjoutReleve& saisie) {
      saisie.Charger(TTypePresence::Repas, sortie, entree, jour);
      EXPECT_TRUE(saisie.Valider());
    });
    fiche.btnAjoutFaitClick();
  };
  ajouter(J("2016-10-10"), EncodeTime(12, 5), EncodeTime(13, 0));
  EXPECT_EQ(base.Rangees(releves.arg(10)),
            (QStringList{u"2;12:05:00.000;13:00:00.000"_s, u"1;12:05:08.640;-"_s}));
  ajouter(J("2016-10-11"), 0.0, EncodeTime(12, 30));
  EXPECT_EQ(base.Rangees(releves.arg(11)).last(), u"1;12:30:00.000;12:30:00.000"_s);

  // The meal goes alone, and comes back alone.
  TGrille& liste = fiche.Releve.Grille;
  for (int ligne = 0; ligne < liste.NombreLignes(); ++ligne)
    if (const auto* releve = liste.Ligne(ligne).Objet.En<TPresence>())
      if (releve->DateReleve == J("2016-10-10") && releve->TypePresence == TTypePresence::Repas)
        liste.ChoisirLigne(ligne);
  base.Dialogues.Repond(u"Confirmez-vous la suppression définitive du relevé sélectionné ?"_s, true);
  fiche.btnDeleteFaitClick();
  EXPECT_EQ(base.Rangees(releves.arg(10)), QStringList{u"1;12:05:08.640;-"_s});
  fiche.Retablir();
  EXPECT_EQ(base.Rangees(releves.arg(10)).size(), 2);
}

TEST_F(TSignaletique, CeQuiEstRefuseNeSePerdPasEnSilence) {
  TFrmSignaletique& fiche = Ouvrir(rose);
  EXPECT_TRUE(fiche.AccepteDeFermer());
  fiche.Champs().Taper(fiche.Champs().Indice(u"lblDateNaissance"_s), u"31/02/2010"_s);
  EXPECT_FALSE(fiche.LaisserChamp());
  const QString question = u"Ce que vous avez introduit n'est pas enregistré. Voulez-vous l'abandonner ?"_s;
  base.Dialogues.Repond(question, false).Repond(question, true);
  Globals.EleveCourant = nullptr;  // as when another screen stood in front
  EXPECT_FALSE(fiche.AccepteDeFermer());
  EXPECT_EQ(Globals.EleveCourant, fiche.Champs().Objet());
  EXPECT_TRUE(fiche.AccepteDeFermer());
}

// A payment of the bank frees its movement when it goes, and takes it again when it comes back, or is made
// more, unless another has it by then.
TEST_F(TSignaletique, LeMouvementDUnPaiementSupprimePuisRetabli) {
  ASSERT_EQ(ecole.mouvement(u"x"_s, u"2016-11-02"_s, u"30"_s), 1);
  base.Sql(u"UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 1 WHERE REMARQUE = 'Acompte'"_s);
  TFrmSignaletique& fiche = Ouvrir(rose);
  const auto faire = [&](auto&& quoi) {
    Globals.Eleves->ChargerExtraits = false;
    quoi();
    return Globals.Eleves->ChargerExtraits;
  };
  fiche.Frais.Grille.ChoisirLigne(fiche.Frais.Grille.NombreLignes() - 1);
  base.Dialogues.Repond(u"Confirmez-vous la suppression du paiement de 30,00 euros (Acompte)"_s, true);
  EXPECT_TRUE(faire([&] { fiche.SpeedButton2Click(); }));
  const QString payes = u"SELECT ELEVE_ID, MONTANT_VERSE FROM FRAIS_ELEVE WHERE EXTRAIT_ID = 1 ORDER BY 1"_s;
  const QString part = u"UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 1, FLG_PART = 1 WHERE REMARQUE = 'Ailleurs'"_s;
  vide.paie(u"20"_s, 0, 0, u"Ailleurs"_s);
  base.Sql(part);
  base.Dialogues.Attend(u"Le mouvement de la banque a été attribué autrement entre-temps."_s);
  fiche.Retablir();
  EXPECT_EQ(base.Rangees(payes), QStringList{u"2;20.0000"_s});
  base.Sql(u"DELETE FROM FRAIS_ELEVE WHERE REMARQUE = 'Ailleurs'"_s);
  EXPECT_TRUE(faire([&] { fiche.Retablir(); })) << "refused, it can be asked again";
  EXPECT_EQ(base.Rangees(payes), QStringList{u"1;30.0000"_s});

  base.Sql(u"UPDATE FRAIS_ELEVE SET FLG_PART = 1, MONTANT_VERSE = 12 WHERE EXTRAIT_ID = 1"_s);
  vide.paie(u"15"_s, 0, 0, u"Ailleurs"_s);
  base.Sql(part);
  TFrmSignaletique& relue = Ouvrir(rose);
  relue.Frais.Grille.ChoisirLigne(relue.Frais.Grille.NombreLignes() - 1);
  monde.Modale<TFrmPaiement>([&](TFrmPaiement& saisie) {
    const int montant = saisie.Champs().Indice(u"edMontant"_s);
    saisie.Champs().Taper(montant, u"15,01"_s);
    EXPECT_FALSE(saisie.Valider());
    EXPECT_EQ(saisie.Champs().Faute(montant),
              u"Il ne reste que 3,00 € de ce mouvement de la banque : il manque 0,01 €."_s);
    saisie.Champs().Taper(montant, u"15"_s);
    EXPECT_TRUE(saisie.Valider());
  });
  relue.grdListeFraisDblClick();
  EXPECT_EQ(base.Rangees(payes), (QStringList{u"1;15.0000"_s, u"2;15.0000"_s}));
  EXPECT_TRUE(Globals.Eleves->ChargerExtraits);

  base.Sql(u"UPDATE EXTRAITS SET MONTANT = 31"_s);
  monde.SurModale = [&](TForm& form) {
    auto& saisie = dynamic_cast<TFrmPaiement&>(form);
    saisie.Champs().Taper(saisie.Champs().Indice(u"edMontant"_s), u"16"_s);
    EXPECT_TRUE(saisie.Valider());
    base.Sql(u"UPDATE FRAIS_ELEVE SET MONTANT_VERSE = 16 WHERE REMARQUE = 'Ailleurs'"_s);
  };
  base.Dialogues.Attend(u"Il ne reste que 0,00 € de ce mouvement de la banque : il manque 1,00 €."_s);
  relue.grdListeFraisDblClick();
  EXPECT_EQ(base.Rangees(payes), (QStringList{u"1;15.0000"_s, u"2;16.0000"_s}));
  EXPECT_EQ(relue.Frais.Grille.Texte(relue.Frais.Grille.NombreLignes() - 1, TFraisPaiements::MontantVerse),
            u"15,00 €")
      << "memory is what the table holds";
}

TEST_F(TSignaletique, SansCleRienNestDitEnregistre) {
  TFrmSignaletique& fiche = Ouvrir(rose);
  const int lignes = fiche.Frais.Grille.NombreLignes();
  base.Sql(u"DELETE FROM COUNTERS WHERE TABLE_NAME = 'FRAIS_ELEVE'"_s);
  monde.Modale<TFrmPaiement>([](TFrmPaiement& saisie) {
    saisie.Champs().Taper(saisie.Champs().Indice(u"edMontant"_s), u"5"_s);
    saisie.Valider();
  });
  base.Dialogues.Attend(u"Le compteur de table FRAIS_ELEVE n'existe pas !"_s)
      .Attend(u"Aucun numéro n'a pu être donné à ce qui devait être mémorisé."_s);
  fiche.SpeedButton1Click();
  EXPECT_EQ(monde.Etats.last(), u"Non enregistré");
  EXPECT_EQ(fiche.Frais.Grille.NombreLignes(), lignes);
}

TEST_F(TSignaletique, LaPhotoEstDroiteEtNiTropGrandeNiUnTexte) {
  TFrmSignaletique& fiche = Ouvrir(rose);
  QImage couchee(60, 40, QImage::Format_RGB32);  // held sideways: its left is the top
  couchee.fill(Qt::blue);
  QByteArray octets = EncoderJpeg(couchee);
  const QByteArray exif =
      QByteArray("Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0", 32);
  octets.insert(2, QByteArray("\xFF\xE1\0\x22", 4) + exif);
  fiche.PrendrePhoto(base.Fichier(u"photo.jpg"_s, octets));
  EXPECT_GT(fiche.Photo().height(), fiche.Photo().width());

  QFile immense(base.Chemin(u"film.jpg"_s));
  ASSERT_TRUE(immense.open(QIODevice::WriteOnly) && immense.resize(200LL * 1024 * 1024));
  for (const QString& mauvais :
       {immense.fileName(), base.Fichier(u"texte.jpg"_s, "un texte"), base.Chemin({}), QString()})
    EXPECT_THROW(fiche.PrendrePhoto(mauvais), Exception) << mauvais.toStdString();
  EXPECT_FALSE(fiche.Photo().isNull());
}

TEST_F(TSignaletique, LeCompteDesVirements) {
  Ouvrir(rose);
  const auto compte = [this] {
    return base.Rangees(u"SELECT NUM_COMPTE, NOM_TITULAIRE_COMPTE FROM ELEVES WHERE ELEVE_ID = "_s +
                        QString::number(rose.Id))[0];
  };
  const auto paye = [this](const QString& numero, const QString& donneur, int annee = 2016) {
    const int extrait = ecole.mouvement(donneur, u"2016-10-03"_s, u"1"_s, numero);
    ecole.Ajouter(u"FRAIS_ELEVE"_s, u"FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, EXTRAIT_ID"_s,
                  {QString::number(rose.Id), QString::number(annee), QString::number(extrait)});
  };
  paye(u"BE00"_s, u"AVANT"_s, 2015);
  base.Dialogues.Attend(u"Aucun numéro de compte n'a été trouvé pour cet élève"_s);
  ecran->AdvGlowButton1Click();
  paye(u"BE11"_s, u"PAPA"_s);
  ecran->AdvGlowButton1Click();
  EXPECT_EQ(compte(), u"BE11;PAPA") << "the only one";
  EXPECT_EQ(ecran->Champs().Texte(ecran->Champs().Indice(u"edNumCompte"_s)), u"BE11");

  paye(u"BE11"_s, u"MAMAN"_s);
  bool choisit = false;
  monde.Modale<TFrmAttributionCompte>([&](TFrmAttributionCompte& choix) {
    ASSERT_EQ(choix.Comptes.NombreLignes(), 2) << "two payers of one account";
    base.Dialogues.Attend(u"Veuillez sélectionner un numéro de compte"_s);
    EXPECT_FALSE(choix.btnSelectionnerClick());
    choix.Comptes.ChoisirLigne(0);
    EXPECT_TRUE(!choisit || choix.btnSelectionnerClick());
  });
  ecran->AdvGlowButton1Click();
  EXPECT_EQ(compte(), u"BE11;PAPA") << "given up";
  choisit = true;
  ecran->AdvGlowButton1Click();
  EXPECT_EQ(compte(), u"BE11;MAMAN");
}
