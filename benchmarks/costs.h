#pragma once

class KWDocument;
class Report;

// Resources on generated projects.
namespace costs {

// `perLeaf` assignments for each task without children, spread evenly over the resources of a new sheet.
void assign(KWDocument &document, int resources, int perLeaf);
void measure(Report &report, int tasks);
}
