#pragma once

class Findings;
class KWDocument;

// What must hold in every document and may not in one from elsewhere.
namespace invariants {

// One finding for each fault: IDs, outline, links, row heights, assignments.
void check(const KWDocument &document, Findings &findings);
}
