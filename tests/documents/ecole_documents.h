#pragma once
#include "documents/catalogue.h"
#include "documents/modeles.h"
#include "report/layout/mise_en_page.h"
#include "support/controleur_essai.h"

/// The nodes of a report as lines of text: two blanks a level, the text, the values.
inline QString Dessin(const TRapport& rapport) {
  QStringList lignes;
  for (const TRapport::TPlace& place : rapport.Plat()) {
    QStringList valeurs;
    for (const auto& [nom, valeur] : place.Noeud->Valeurs) valeurs += nom % u'=' % valeur;
    lignes += QString(place.Niveau * 2, u' ') % place.Noeud->Texte % u": " % valeurs.join(u" | ");
  }
  return lignes.join(u'\n');
}

/// A variable of the first report; "" when there is none.
inline QString Variable(const TResultat& resultat, QStringView nom) {
  return resultat.Rapports.at(0).Variables().Valeur(nom);
}

/// All of them: "name=value|...".
inline QString Variables(const TRapport& rapport) {
  QStringList variables;
  for (const auto& [nom, valeur] : rapport.Variables()) variables += nom % u'=' % valeur;
  return variables.join(u'|');
}

/// The pages of a report by its template, which must find no fault in it.
inline TDocumentPrepare Pages(const TRapport& rapport) {
  TDocumentPrepare document = MettreEnPage(rapport, *ModeleDocument(rapport.Modele()));
  for (const TDefaut& defaut : document.Defauts)
    ADD_FAILURE() << rapport.Modele().toStdString() << ": " << defaut.Message.toStdString();
  return document;
}

/// The texts of a page in the order in which they are drawn.
inline QStringList TextesPage(const TPagePreparee& page) {
  QStringList textes;
  for (const TElement& element : page.Elements)
    if (const auto* texte = std::get_if<TElementTexte>(&element)) textes += texte->Forme->Texte;
  return textes;
}

/// A school whose services have prices with a tail behind the cents, and the documents it asks for.
struct TDocumentsEssai : TEssaiEcole {
  void SetUp() override {
    using namespace Essai;
    const int semaine = LundiMardiJeudiVendredi;
    ecole.tarif(Matin, semaine, u"07:00"_s, u"08:00"_s, Forfait, u"1.2345"_s, ScanPresence);
    ecole.tarif(Midi, semaine, u"12:00"_s, u"13:00"_s, Forfait, u"0.5050"_s, ScanPresence);
    ecole.tarif(Soir, semaine, u"16:00"_s, u"18:00"_s, Forfait, u"2.0099"_s, ScanSortie);
    ecole.tarif(Mercredi, 3, u"12:30"_s, u"18:00"_s, Forfait, u"3.0078"_s, ScanSortie);
    ecole.tarif(FamilleEtude, semaine, u"15:30"_s, u"16:30"_s, Forfait, u"1.5055"_s, ScanPresence);
    ecole.tarif(FamilleSoupe, TousLesJours, u"12:00"_s, u"13:00"_s, Forfait, u"0.70"_s, ScanPresence);
    ecole.parametre(102, u"3,50"_s);
  }
  TEleveEssai UnEleve(const QString& drapeau = {}) {
    TEleveEssai eleve = ecole.unEleve().enClasse(u"P3"_s, u"A"_s);
    return drapeau.isEmpty() ? eleve : eleve.avec(drapeau);
  }
  /// Presences by kind and hours: "matin 2016-10-03", or with hours of its own "matin 2016-10-03 07:12
  /// 07:40".
  static void Scans(TEleveEssai& eleve, const QStringList& scans) {
    static const QHash<QString, std::pair<int, QString>> sortes{
        {u"matin"_s, {Essai::Garderie, u"07:30 "_s}}, {u"midi"_s, {Essai::Garderie, u"12:15 "_s}},
        {u"soir"_s, {Essai::Garderie, u" 17:00"_s}},  {u"etude"_s, {Essai::Etude, u"16:00 "_s}},
        {u"repas"_s, {Essai::Repas, u"12:00 "_s}},    {u"soupe"_s, {Essai::Soupe, u"12:00 "_s}}};
    for (const QString& scan : scans) {
      const auto& [type, heures] = sortes[scan.section(u' ', 0, 0)];
      const QStringList propres = (scan.count(u' ') > 1 ? scan.section(u' ', 2) : heures).split(u' ');
      eleve.scan(type, scan.section(u' ', 1, 1), propres.value(0), propres.value(1));
    }
  }

  /// The document of that title for those pupils and October, the data as they stand in the database.
  TResultat Demander(QStringView titre, const std::vector<int>& eleves, const char* du = "2016-10-01",
                     const char* au = "2016-10-31", std::optional<TDateTime> datePaiement = {}) {
    Globals = {};
    controleur.Charger();
    TChoixDocument choix;
    choix.DateDebut = J(du);
    choix.DateFin = J(au);
    choix.DatePaiement = datePaiement;
    for (const int eleve : eleves) choix.Eleves.push_back(Globals.Eleves->TrouverParId(eleve));
    return FaireDocument(ContexteDesGlobals(controleur.Horloge), *TrouverTitre(titre), choix);
  }
  TResultat Facturer(const std::vector<int>& eleves, const char* du = "2016-10-01",
                     const char* au = "2016-10-31", std::optional<TDateTime> datePaiement = {}) {
    return Demander(u"Facture", eleves, du, au, datePaiement);
  }

  TControleurEssai controleur{base};
};
