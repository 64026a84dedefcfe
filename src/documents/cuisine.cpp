#include "documents/cuisine.h"

#include <algorithm>

#include "core/formats.h"
#include "core/parametres.h"
#include "meals/commandes.h"
#include "meals/generation_repas.h"
#include "pupils/eleves.h"
#include "workflows/jour_cuisine.h"

using namespace Qt::StringLiterals;

namespace {

QString Mot(const char16_t* mot) { return QString::fromUtf16(mot); }
QString Nombre(int nombre) { return QString::number(nombre); }
QString Gras(const QString& texte) { return u"<b>" % texte % u"</b>"; }

TRapport Rapport(const QString& titre, const QString& modele, const TContexteDocument& contexte,
                 TDateTime jour) {
  TRapport rapport(titre, modele);
  rapport.AjouterVariable(u"DateJour", FormatJourLong(jour));
  rapport.AjouterVariable(u"NomEcole", contexte.Parametres.GetParametre(TParam::NomEcole));
  return rapport;
}

// The detail of orders.

using TCommandesDuJour = std::function<const TCommande*(const TEleve&)>;

/// Those of the class who eat it, by name.
std::vector<const TEleve*> Mangeurs(const TClasse& classe, bool TCommande::*flag,
                                    const TCommandesDuJour& commande) {
  std::vector<const TEleve*> mangeurs;
  for (const TEleve* eleve : classe.ListeEleves)
    if (const TCommande* c = commande(*eleve); c != nullptr && c->*flag) mangeurs.push_back(eleve);
  return mangeurs;
}

TNoeudRapport NoeudTypeRepas(const TContexteDocument& contexte, const QString& cle, const QString& typeRepas,
                             bool TCommande::*flag, const TCommandesDuJour& commande) {
  TNoeudRapport noeud(cle);
  noeud.Valeurs.Ecrire(u"TypeRepas", typeRepas);
  for (const auto& classe : contexte.Eleves.Classes()) {
    const auto mangeurs = Mangeurs(*classe, flag, commande);
    if (mangeurs.empty()) continue;
    TNoeudRapport& noeudClasse = noeud.Ajouter(classe->Libelle());
    noeudClasse.Valeurs.Ecrire(u"Classe", classe->Libelle());
    for (const TEleve* eleve : mangeurs)
      noeudClasse.Ajouter(eleve->NomComplet()).Valeurs.Ecrire(u"NomEleve", eleve->NomComplet());
  }
  return noeud;
}

// The preparation sheet.

/// Who eats when: fixed lists of classes.
struct TServiceRepas {
  const char16_t* Libelle;
  std::vector<QStringView> Classes;
};

const TServiceRepas kServices[] = {
    {u"1er service", {u"M1 GA", u"M1 B"}},
    {u"2e service", {u"M2 A", u"M3 A"}},
    {u"3e service", {u"P1 A", u"P1 B", u"P2 A", u"P3 B"}},
    {u"4e service", {u"P3 A", u"P4 A", u"P5 A", u"P6 A"}},
};

/// Hot meals and the others of a section.
struct TSectionRepas {
  int Repas = 0;
  int Autres = 0;
};

TNoeudRapport Bloc(const QString& titre, const QString& colonneLarge) {
  TNoeudRapport bloc(titre);
  bloc.Valeurs.Ecrire(u"TitreCol1", titre);
  bloc.Valeurs.Ecrire(u"ColonneLarge", colonneLarge);
  return bloc;
}

TNoeudRapport& Rangee(TNoeudRapport& bloc, const QString& cle, const QString& libelle) {
  TNoeudRapport& rangee = bloc.Ajouter(cle);
  rangee.Valeurs.Ecrire(u"LibelleCol1", libelle);
  return rangee;
}

/// The numbers of a section stand in its own two columns.
void EcrireNombres(TNoeudRapport& rangee, TCategorie section, const QString& repas, const QString& autres) {
  const bool maternelle = section == TCategorie::Maternelle;
  rangee.Valeurs.Ecrire(maternelle ? u"LibelleCol2" : u"LibelleCol3", repas);
  rangee.Valeurs.Ecrire(maternelle ? u"LibelleCol4" : u"LibelleCol5", autres);
}

void AjouterTotal(TNoeudRapport& bloc, const QString& cle, const QString& libelle, TCategorie section,
                  const TSectionRepas& total) {
  EcrireNombres(Rangee(bloc, cle, Gras(libelle)), section, Gras(Nombre(total.Repas)),
                Gras(Nombre(total.Autres)));
}

/// The kind of a class is told by its label. Staff, and what is neither, have no number.
TNoeudRapport BlocClasses(const TJourCuisine& jour, const TGenerationRepas& generation) {
  TNoeudRapport bloc = Bloc(u"Nombre de repas chauds : " % Nombre(jour.Repas) % Mot(generation.FicheEntete) %
                                Nombre(jour.Sandwichs + jour.Dagos),
                            u"2"_s);
  TSectionRepas maternelle, primaire;
  for (const TClasseDuJour& classe : jour.Classes) {
    const QString libelle = classe.Classe->Libelle();
    TNoeudRapport& rangee = Rangee(bloc, libelle, libelle);
    const TCategorie section = classe.Classe->Categorie();
    if (section != TCategorie::Maternelle && section != TCategorie::Primaire) continue;
    EcrireNombres(rangee, section, Nombre(classe.Repas), Nombre(classe.Autres));
    TSectionRepas& total = section == TCategorie::Maternelle ? maternelle : primaire;
    total.Repas += classe.Repas;
    total.Autres += classe.Autres;
  }
  AjouterTotal(bloc, u"TotRepasMat"_s, u"Total en maternelle"_s, TCategorie::Maternelle, maternelle);
  AjouterTotal(bloc, u"TotRepasPrimaire"_s, u"Total en primaire"_s, TCategorie::Primaire, primaire);
  bloc.Valeurs.Ecrire(u"Conclusion1",
                      u"Total de repas chauds : " % Nombre(maternelle.Repas + primaire.Repas));
  return bloc;
}

TNoeudRapport BlocServices(const TJourCuisine& jour, const QString& conclusion) {
  TNoeudRapport bloc = Bloc(u"Récapitulatif des repas chauds par service"_s, u"2"_s);
  for (const TServiceRepas& service : kServices) {
    int nombre = 0;
    for (const TClasseDuJour& classe : jour.Classes)
      if (std::ranges::find(service.Classes, classe.Classe->Libelle()) != service.Classes.end())
        nombre += classe.Repas;
    Rangee(bloc, Mot(service.Libelle), Mot(service.Libelle))
        .Valeurs.Ecrire(u"LibelleCol2", Nombre(nombre) % u" repas");
  }
  bloc.Valeurs.Ecrire(u"Conclusion1", conclusion);
  return bloc;
}

/// The first pupil of a variety stands on its own row, each further one below it.
void AjouterVariete(TNoeudRapport& bloc, const QString& cle, const QString& libelle,
                    const std::vector<const TEleve*>& eleves) {
  TNoeudRapport* rangee = &Rangee(bloc, cle, libelle);
  for (std::size_t i = 0; i < eleves.size(); ++i) {
    if (i > 0) rangee = &Rangee(bloc, {}, {});
    rangee->Valeurs.Ecrire(u"LibelleCol2", eleves[i]->NomComplet());
    rangee->Valeurs.Ecrire(u"LibelleCol3", eleves[i]->LibelleClasse());
  }
}

TNoeudRapport BlocVarietes(const TContexteDocument& contexte, TDateTime jour, const QString& titre,
                           const QString& sorte, const TSandwichsDuJour& sandwichs) {
  TNoeudRapport bloc = Bloc(titre % Nombre(static_cast<int>(sandwichs.Eleves.size())), u"1"_s);
  for (std::size_t v = 0; v < kVarietes; ++v) {
    std::vector<const TEleve*> eleves;
    for (const TEleve* eleve : sandwichs.Eleves)
      if (EstDeVariete(*contexte.Eleves.Commandes().Trouver(eleve->Id, jour), v)) eleves.push_back(eleve);
    const QString variete = TexteVariete(v);
    AjouterVariete(bloc, sorte % u' ' % variete, Nombre(sandwichs.Varietes[v]) % u' ' % variete, eleves);
  }
  return bloc;
}

}  // namespace

TResultat DetailCommandes(const TContexteDocument& contexte, const TJourCuisine& jour,
                          const TGenerationRepas& generation) {
  const struct {
    int Nombre;
    QString Cle, Libelle;
    bool TCommande::*Flag;
  } blocs[] = {
      {jour.Repas, u"repas chaud"_s, u" repas chauds"_s, &TCommande::FlgRepas},
      {jour.Sandwichs, Mot(generation.DetailSandwich), Mot(generation.DetailSandwichs),
       &TCommande::FlgSandwich},
      {jour.Dagos, Mot(generation.DetailDago), Mot(generation.DetailDagos), &TCommande::FlgDago},
  };
  const TCommandesDuJour commande = [&](const TEleve& eleve) -> const TCommande* {
    return contexte.Eleves.Commandes().Trouver(eleve.Id, jour.Jour);
  };
  TArbreRapport arbre;
  for (const auto& [nombre, cle, libelle, flag] : blocs)
    if (nombre > 0) arbre.push_back(NoeudTypeRepas(contexte, cle, Nombre(nombre) % libelle, flag, commande));
  return PresenterMemeVide(Rapport(u"Détail des commandes"_s, u"DetailCommandes"_s, contexte, jour.Jour),
                           std::move(arbre));
}

TResultat FichePreparation(const TContexteDocument& contexte, const TJourCuisine& jour,
                           const TGenerationRepas& generation) {
  TArbreRapport arbre;
  arbre.push_back(BlocClasses(jour, generation));
  arbre.push_back(BlocServices(jour, arbre.front().Valeurs.Valeur(u"Conclusion1")));
  arbre.push_back(
      BlocVarietes(contexte, jour.Jour, Mot(generation.FicheTitreDago), u"dago"_s, jour.DagosDuJour));
  arbre.push_back(BlocVarietes(contexte, jour.Jour, u"Nombre total de sandwichs : "_s, u"sandwich"_s,
                               jour.SandwichsDuJour));
  return PresenterMemeVide(Rapport(u"Fiche de préparation"_s, u"FichePreparation"_s, contexte, jour.Jour),
                           std::move(arbre));
}

TResultat ChoixDeRepas(const TContexteDocument& contexte, const TClasse& classe, TDateTime jour) {
  TRapport rapport(u"Choix de repas"_s, u"ChoixRepas"_s);
  rapport.AjouterVariable(u"Classe", classe.Libelle());
  rapport.AjouterVariable(u"DateJour", FormatJourLong(jour));
  rapport.AjouterVariable(u"NomEcole", contexte.Parametres.GetParametre(TParam::NomEcole));
  TArbreRapport arbre;
  for (const TEleve* eleve : SansRadies(classe.ListeEleves))
    arbre.emplace_back(eleve->NomComplet()).Valeurs.Ecrire(u"NomEleve", eleve->NomComplet());
  return PresenterMemeVide(std::move(rapport), std::move(arbre));
}

TResultat DetailCommandes(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return DetailCommandes(contexte, JourDeCuisine(contexte.Eleves, demande.Jour),
                         GenerationRepas(demande.NouveauxRepas));
}

TResultat FichePreparation(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return FichePreparation(contexte, JourDeCuisine(contexte.Eleves, demande.Jour),
                          GenerationRepas(demande.NouveauxRepas));
}

TResultat ChoixDeRepas(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  if (demande.Classes.size() == 1) return ChoixDeRepas(contexte, *demande.Classes[0], demande.Jour);
  TResultat resultat;
  resultat.Messages += u"Veuillez choisir une classe dans la liste"_s;
  resultat.Echec = true;
  return resultat;
}
