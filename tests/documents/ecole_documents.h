#pragma once
#include <gtest/gtest.h>

#include "documents/catalogue.h"
#include "pupils/eleves.h"
#include "support/affichage.h"
#include "support/controleur_essai.h"
#include "support/valeurs.h"

/// The nodes of a report as lines of text: two blanks a level, the text, the values.
inline QStringList Dessin(const TRapport& rapport) {
  QStringList lignes;
  for (const TRapport::TPlace& place : rapport.Plat()) {
    QString ligne = QString(place.Niveau * 2, u' ') + place.Noeud->Texte;
    for (const auto& [nom, valeur] : place.Noeud->Valeurs) ligne += u" | " % nom % u'=' % valeur;
    lignes += ligne;
  }
  return lignes;
}

/// A school whose services have prices with a tail behind the cents, and the documents it asks for.
struct TDocumentsEssai : testing::Test {
  void SetUp() override {
    using namespace Essai;
    Tarif(Matin, LundiMardiJeudiVendredi, "07:00", "08:00", "1.2345", ScanPresence);
    Tarif(Midi, LundiMardiJeudiVendredi, "12:00", "13:00", "0.5050", ScanPresence);
    Tarif(Soir, LundiMardiJeudiVendredi, "16:00", "18:00", "2.0099", ScanSortie);
    Tarif(Mercredi, Essai::Mercredi, "12:30", "18:00", "3.0078", ScanSortie);
    Tarif(FamilleEtude, LundiMardiJeudiVendredi, "15:30", "16:30", "1.5055", ScanPresence);
    Tarif(FamilleSoupe, TousLesJours, "12:00", "13:00", "0.70", ScanPresence);
    ecole.parametre(102, QStringLiteral("3,50"));
  }
  void Tarif(int famille, int jour, const char* debut, const char* fin, const char* cout, int scan) {
    ecole.tarif(famille, jour, QString::fromLatin1(debut), QString::fromLatin1(fin), Essai::Forfait,
                QString::fromLatin1(cout), scan);
  }
  TEleveEssai UnEleve() { return ecole.unEleve().enClasse(QStringLiteral("P3"), QStringLiteral("A")); }
  /// A morning, an evening, a meal ... "2016-10-03"
  static void UnMatin(TEleveEssai& e, const char* jour) { Scan(e, Essai::Garderie, jour, "07:30", ""); }
  static void UnSoir(TEleveEssai& e, const char* jour) { Scan(e, Essai::Garderie, jour, "", "17:00"); }
  static void UnRepas(TEleveEssai& e, const char* jour) { Scan(e, Essai::Repas, jour, "12:00", ""); }
  static void UnSoupe(TEleveEssai& e, const char* jour) { Scan(e, Essai::Soupe, jour, "12:00", ""); }
  static void UnEtude(TEleveEssai& e, const char* jour) { Scan(e, Essai::Etude, jour, "16:00", ""); }
  static void Scan(TEleveEssai& e, int type, const char* jour, const char* entree, const char* sortie) {
    e.scan(type, QString::fromLatin1(jour), QString::fromLatin1(entree), QString::fromLatin1(sortie));
  }

  /// The document of that title for those pupils, the data as they stand in the database.
  TResultat Demander(const QString& titre, const std::vector<int>& eleves, const char* du, const char* au,
                     std::optional<TDateTime> datePaiement = {}) {
    Globals = {};
    controleur.Charger();
    TChoixDocument choix;
    choix.Indice = IndiceTitre(titre);
    choix.DateDebut = J(du);
    choix.DateFin = J(au);
    choix.DatePaiement = datePaiement;
    for (const int eleve : eleves) choix.Eleves.push_back(Globals.Eleves->TrouverParId(eleve));
    return FaireDocument(ContexteDesGlobals(), choix);
  }
  TResultat Facturer(const std::vector<int>& eleves, const char* du, const char* au,
                     std::optional<TDateTime> datePaiement = {}) {
    return Demander(QStringLiteral("Facture"), eleves, du, au, datePaiement);
  }

  TBaseEssai base;
  TEcoleEssai ecole{base};
  TControleurEssai controleur{base};
};
