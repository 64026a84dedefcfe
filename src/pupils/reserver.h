#pragma once

class TDataModule1;
class TEleve;

/// Inside a common transaction: whoever reserves the same pupil waits here until that transaction ends. What
/// is looked at afterwards stays so until this one ends, as far as others reserve too. Raises Exception.
void Reserver(const TEleve& eleve);
/// The same of a bank movement.
void ReserverExtrait(TDataModule1& base, int extraitId);
