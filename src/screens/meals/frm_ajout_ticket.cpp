#include "screens/meals/frm_ajout_ticket.h"

#include "core/conversions.h"
#include "pupils/eleve.h"
#include "workflows/vente_tickets.h"

namespace {

const QString kDateAchat = u"Date d'achat"_s;
const QString kDateUtilisation = u"Date d'utilisation"_s;

TTableChamps<TSaisieTicket> Table() {
  return {
      {{.Nom = u"cbTicketManquant"_s, .Libelle = u"Ticket manquant"_s, .Genre = TGenreChamp::Coche},
       Membre(&TSaisieTicket::Manquant)},
      {{.Nom = u"edNombre"_s,
        .Libelle = u"Nombre de tickets"_s,
        .Genre = TGenreChamp::Entier,
        .Obligatoire = true,
        .Refus = RefusNombreTickets()},
       Membre(&TSaisieTicket::Nombre)},
      {{.Nom = u"dtDate"_s, .Libelle = kDateAchat, .Genre = TGenreChamp::Date, .Obligatoire = true},
       Membre(&TSaisieTicket::Date)},
      {{.Nom = u"edPrix"_s,
        .Libelle = u"Prix"_s,
        .Genre = TGenreChamp::Montant,
        .Obligatoire = true,
        .Unite = u"€"_s},
       Membre(&TSaisieTicket::Prix)},
      {{.Nom = u"rbPaiement"_s,
        .Libelle = u"Paiement"_s,
        .Genre = TGenreChamp::Choix,
        .Boutons = true,
        .Choix =
            [] {
              return QStringList{u"Virement"_s, u"Comptant"_s};
            }},
       Membre(&TSaisieTicket::Paiement)},
  };
}

}  // namespace

TFrmAjoutTicket::TFrmAjoutTicket(TContexteEcran& contexte, TEleve& eleve, Currency prix)
    : TFrmDialogueDe(u"Ajouter des tickets à "_s + eleve.NomComplet(), Table()),
      eleve_(eleve),
      champs_(Champs()) {
  Saisi.Prix = prix;
  Saisi.Date = contexte.Controleur.Horloge().Aujourdhui();
  Montrer();
  liens_ += Champs().SurChangement.Suivre([this](int champ) {
    if (champ == champs_.Indice(u"cbTicketManquant"_s)) cbTicketManquantClick();
    Annoncer();
  });
}

bool TFrmAjoutTicket::Manquant() const { return champs_.Entier(champs_.Indice(u"cbTicketManquant"_s)) != 0; }

QString TFrmAjoutTicket::LibelleDate() const { return Manquant() ? kDateUtilisation : kDateAchat; }

QString TFrmAjoutTicket::Annonce() const {
  if (Manquant()) return {};
  return AnnonceVente(eleve_, StrToIntDef(champs_.Texte(champs_.Indice(u"edNombre"_s)), 0));
}

void TFrmAjoutTicket::cbTicketManquantClick() {
  if (Manquant()) Champs().Proposer(champs_.Indice(u"edNombre"_s), 1);
}

bool TFrmAjoutTicket::Controler() {
  if (!EstNombreTickets(Saisi.Nombre)) return Champs().Refuser(u"edNombre"_s, RefusNombreTickets());
  if (const QString refus = RefusPrixTicket(Saisi.Prix); !refus.isEmpty())
    return Champs().Refuser(u"edPrix"_s, refus);
  Enregistrer();
  return true;
}

void TFrmAjoutTicket::Enregistrer() {
  if (Saisi.Manquant)
    eleve_.AjouterCredit(Saisi.Prix, Saisi.Date);
  else
    eleve_.AcheterTickets(Saisi.Nombre, static_cast<TPaiementTicket>(Saisi.Paiement + 1), Saisi.Prix,
                          Saisi.Date);
}
