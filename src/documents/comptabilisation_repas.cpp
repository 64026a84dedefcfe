#include "documents/comptabilisation_repas.h"

#include "documents/lettres.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

struct TNombres {
  std::size_t Repas = 0;
  std::size_t Soupes = 0;

  void Ajouter(const TNombres& autres) {
    Repas += autres.Repas;
    Soupes += autres.Soupes;
  }
  // The singular is for exactly 1 here: "0 soupes".
  QString TexteRepas() const {
    return QString::number(Repas) % (Repas == 1 ? u" repas chaud" : u" repas chauds");
  }
  QString TexteSoupes() const { return QString::number(Soupes) % (Soupes == 1 ? u" soupe" : u" soupes"); }
  QString Texte() const {
    if (Soupes == 0) return TexteRepas();
    return Repas == 0 ? TexteSoupes() : QString(TexteRepas() % u" + " % TexteSoupes());
  }
};

TNombres Compter(const TEleve& eleve, const TPeriode& periode) {
  const auto jours = [&](TService service) {
    TLignesService lignes;
    eleve.CoutService(service, periode, lignes);
    return lignes.size();
  };
  return {jours(TService::Repas), jours(TService::Soupe)};
}

struct TClasseComptee {
  const TClasse* Classe;
  TNoeudRapport Noeud;
  TNombres Nombres;
};

TClasseComptee& ClasseDe(std::vector<TClasseComptee>& classes, const TEleve& eleve) {
  const QString libelle = eleve.LibelleClasse();
  for (TClasseComptee& classe : classes)
    if (classe.Classe == eleve.Classe && classe.Noeud.Texte == libelle) return classe;
  TClasseComptee& nouvelle = classes.emplace_back(TClasseComptee{eleve.Classe, TNoeudRapport(libelle), {}});
  nouvelle.Noeud.Valeurs.Ecrire(u"Classe", libelle);
  return nouvelle;
}

void AjouterEleve(TClasseComptee& classe, const TEleve& eleve, const TNombres& nombres) {
  TValeurs& valeurs = classe.Noeud.Ajouter(eleve.NomComplet()).Valeurs;
  valeurs.Ecrire(u"NomEleve", eleve.Nom);
  valeurs.Ecrire(u"PrenomEleve", eleve.Prenom);
  valeurs.Ecrire(u"NombreRepasSoupe", nombres.Texte());
  classe.Nombres.Ajouter(nombres);
}

}  // namespace

TResultat ComptabilisationRepas(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  std::vector<TClasseComptee> classes;
  TNombres maternelle, primaire, general;
  for (const TEleve* eleve : SansRadies(demande.Eleves)) {
    const TNombres nombres = Compter(*eleve, demande.Periode.Jours());
    if (nombres.Repas + nombres.Soupes == 0) continue;
    AjouterEleve(ClasseDe(classes, *eleve), *eleve, nombres);
    general.Ajouter(nombres);
    if (eleve->Categorie() == TCategorie::Maternelle) maternelle.Ajouter(nombres);
    if (eleve->Categorie() == TCategorie::Primaire) primaire.Ajouter(nombres);
  }

  TArbreRapport arbre;
  for (TClasseComptee& classe : classes) {
    classe.Noeud.Valeurs.Ecrire(u"TotRepasClasse", classe.Nombres.TexteRepas() % u'.');
    classe.Noeud.Valeurs.Ecrire(u"TotSoupeClasse", classe.Nombres.TexteSoupes() % u'.');
    arbre.push_back(std::move(classe.Noeud));
  }
  TRapport rapport = LettreEcole(u"Récapitulatif des repas et des soupes"_s, u"Economat"_s,
                                 contexte.Parametres, demande.Periode.PeriodeTexte());
  const struct {
    QStringView Repas, Soupes;
    const TNombres& Nombres;
  } sommes[] = {{u"TotRepasMaternelle", u"TotSoupeMaternelle", maternelle},
                {u"TotRepasPrimaire", u"TotSoupePrimaire", primaire},
                {u"TotRepasGeneral", u"TotSoupeGeneral", general}};
  for (const auto& [repas, soupes, nombres] : sommes) {
    rapport.AjouterVariable(repas, QString::number(nombres.Repas));
    rapport.AjouterVariable(soupes, QString::number(nombres.Soupes));
  }
  return Presenter(std::move(rapport), std::move(arbre), TexteRienAImprimer());
}
