#pragma once
// A fixed set of small numbers (slots, bets, steps) as bits.

#include <array>
#include <bit>
#include <cstdint>

// A set of slots 0..64*kWords-1.
template <int kWords>
struct SlotBits {
  std::array<uint64_t, kWords> words{};

  bool Has(int slot) const { return (words[slot >> 6] >> (slot & 63)) & 1u; }
  void Add(int slot) { words[slot >> 6] |= uint64_t{1} << (slot & 63); }
  void Remove(int slot) { words[slot >> 6] &= ~(uint64_t{1} << (slot & 63)); }
  // Whether `slot` is the set's one member (no set is built to compare with).
  bool IsOnly(int slot) const {
    uint64_t differ = 0;
    for (int word = 0; word < kWords; ++word) differ |= words[word] ^ BitIn(word, slot);
    return differ == 0;
  }
  bool Any() const {
    uint64_t any = 0;
    for (uint64_t w : words) any |= w;
    return any != 0;
  }
  // Takes the lowest slot out of a set that has one.
  int TakeFirst() {
    for (int word = 0; word < kWords - 1; ++word) {
      if (words[word] == 0) continue;
      const int slot = word * 64 + std::countr_zero(words[word]);
      words[word] &= words[word] - 1;
      return slot;
    }
    const int slot = (kWords - 1) * 64 + std::countr_zero(words[kWords - 1]);
    words[kWords - 1] &= words[kWords - 1] - 1;
    return slot;
  }
  friend SlotBits operator&(SlotBits a, const SlotBits& b) {
    for (int word = 0; word < kWords; ++word) a.words[word] &= b.words[word];
    return a;
  }
  friend SlotBits operator^(SlotBits a, const SlotBits& b) {
    for (int word = 0; word < kWords; ++word) a.words[word] ^= b.words[word];
    return a;
  }
  // Calls f(slot) for every slot of the set, lowest first.
  template <typename F>
  void ForEach(F&& f) const {
    for (int word = 0; word < kWords; ++word)
      for (uint64_t bits = words[word]; bits != 0; bits &= bits - 1) f(word * 64 + std::countr_zero(bits));
  }
  // Word by word: the library's comparison of the arrays would call memcmp.
  friend bool operator==(const SlotBits& a, const SlotBits& b) {
    uint64_t differ = 0;
    for (int word = 0; word < kWords; ++word) differ |= a.words[word] ^ b.words[word];
    return differ == 0;
  }

 private:
  static uint64_t BitIn(int word, int slot) { return (slot >> 6) == word ? uint64_t{1} << (slot & 63) : 0; }
};
