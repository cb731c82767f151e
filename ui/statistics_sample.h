#pragma once
// A few hundred rolls of a steady player (Pass Line with odds, Place 6 and
// 8, a Come bet, the Field now and then), so that the statistics screens
// have figures of every kind to show in their pictures.

class Table;

void PlayForStatisticsPictures(Table& table);
