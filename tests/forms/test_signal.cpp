#include "forms/signal.h"

TEST(Signal, LeLienFinitAvecCeluiQuiEcoute) {
  std::optional<TSignal<int>> signal{std::in_place};
  std::vector<int> entendus;
  TLien long_ = signal->Suivre([&](int n) { entendus.push_back(n); });
  {
    const TLien court = signal->Suivre([&](int n) { entendus.push_back(-n); });
    (*signal)(1);
  }
  (*signal)(2);
  EXPECT_EQ(entendus, (std::vector{1, -1, 2}));
  signal.reset();
  long_.Rompre();  // after the signal
}

TEST(Signal, UnGestePendantLAnnonce) {
  std::optional<TSignal<>> signal{std::in_place};
  std::vector<char> entendus;
  TLien a, b, c, d;
  a = signal->Suivre([&] {
    entendus.push_back('a');
    a.Rompre();  // itself: what it holds must live until it returns
    b.Rompre();
    d = signal->Suivre([&] { entendus.push_back('d'); });
  });
  b = signal->Suivre([&] { entendus.push_back('b'); });
  c = signal->Suivre([&, garde = std::make_shared<int>(7)] {
    entendus.push_back('c');
    if (entendus.size() > 3) signal.reset();
    EXPECT_EQ(*garde, 7);
  });
  (*signal)();
  EXPECT_EQ(entendus, (std::vector{'a', 'c'}));
  (*signal)();
  EXPECT_EQ(entendus, (std::vector{'a', 'c', 'c', 'd'}));
  (*signal)();
  EXPECT_FALSE(signal);
}
