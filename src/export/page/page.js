'use strict';
(() => {
// ---- The plan ------------------------------------------------------------------------------------------------------
// Days are counted from the chart's left edge, moments in seconds from there on the clock of working days: a working
// day fills the whole of its date.
const $ = id => document.getElementById(id);
const plan = JSON.parse($('plan').textContent);
const T = plan.text;
const DAY = 86400, HEAD = 40, PAD = 11, NARROW = 14;
const SUMMARY = 1, MILESTONE = 2, CRITICAL = 4, FOLDED = 8, ATSTART = 16;
const rows = plan.rows.map((r, i) => ({
  i, id: r[0], parent: r[1], flags: r[2], level: r[3], start: r[4], finish: r[5], done: r[6], height: r[7], cells: r[8],
  base: r[9], slack: r[10], waits: r[11], then: [], folded: !!(r[2] & FOLDED)
}));
const nameOf = r => r.cells[plan.name];
const format = options => {
  try { return new Intl.DateTimeFormat(plan.lang, {timeZone: 'UTC', ...options}); }
  catch (e) { return new Intl.DateTimeFormat('en', {timeZone: 'UTC', ...options}); }
};
const dateOf = day => new Date((plan.day0 + day) * 864e5);
const shortDate = format({day: 'numeric', month: 'short'});
function labelOf(r) { // beside its bar
  const date = secs => shortDate.format(dateOf(Math.floor(secs / DAY)));
  if (plan.labels === 'names') return nameOf(r);
  if (r.start < 0 || plan.labels === 'none' || r.flags & SUMMARY) return '';
  const first = date(r.start), last = date(Math.max(r.finish - 1, r.start));
  if (r.flags & MILESTONE) return last;
  if (plan.labels === 'resources') return r.cells[plan.resources].replace(/\s*;\s*/g, ', ');
  return first === last ? first : first + ' – ' + last;
}
rows.forEach(r => { r.label = labelOf(r); });
rows.forEach(r => r.waits.forEach(([from]) => rows[from].then.push(r.i)));
const exceptions = new Map();
plan.except.forEach(([day, count, works]) => { for (let d = day; d < day + count; ++d) exceptions.set(d, works); });
const weekday = day => (((plan.day0 + day + 3) % 7) + 7) % 7; // Monday is 0
const isOff = day => !(exceptions.has(day) ? exceptions.get(day) : plan.week[weekday(day)]);

const view = $('view'), stage = $('stage'), chart = $('chart'), axis = $('axis');
const ink = document.createElement('canvas').getContext('2d');
const widths = new Map();
function measure(text, font) {
  const key = font + text;
  let width = widths.get(key);
  if (width === undefined) {
    if (widths.size > 20000) widths.clear();
    ink.font = font;
    widths.set(key, width = ink.measureText(text).width);
  }
  return width;
}
const family = getComputedStyle(document.body).fontFamily;
const SMALL = '11.3px ' + family, TEXT = '12px ' + family, BOLD = 'bold 12px ' + family;
const esc = text => String(text).replace(/[&<>"']/g, c => '&#' + c.charCodeAt(0) + ';');
const round = x => Math.round(x * 100) / 100;
const fill = (text, ...values) => text.replace(/%(\d)/g, (all, n) => values[n - 1]);

// ---- What shows, and where -----------------------------------------------------------------------------------------
let perDay = 20;        // pixels
let shown = [], top = [0], place = [], stand = []; // rows in sight; their tops; place of each row; who stands for it
let links = [];
let selected = -1, matches = [], match = -1, wanted = '';
let namesWidth = 0, cellsWidth = 0, columns = [], chosen = 'auto';
let version = 0;        // of all that pictures depend on
const trail = [];

function arrange() {
  shown = []; place = new Int32Array(rows.length).fill(-1); stand = new Int32Array(rows.length);
  for (const r of rows) {
    const p = r.parent;
    const isHidden = p >= 0 && (place[p] < 0 || rows[p].folded);
    stand[r.i] = isHidden ? stand[p] : r.i;
    if (!isHidden) { place[r.i] = shown.length; shown.push(r.i); }
  }
  top = new Float64Array(shown.length + 1);
  shown.forEach((i, k) => { top[k + 1] = top[k] + rows[i].height; });
  // A folded summary stands for what it hides, at most once for each pair.
  const seen = new Map();
  links = [];
  for (const r of rows) for (const [from] of r.waits) {
    const a = stand[from], b = stand[r.i];
    const isCritical = !!(rows[from].flags & r.flags & CRITICAL);
    const known = seen.get(a * rows.length + b);
    if (known) known.isCritical = known.isCritical || isCritical;
    if (known || a === b || rows[a].start < 0 || rows[b].start < 0) continue;
    const link = {a, b, low: Math.min(place[a], place[b]), high: Math.max(place[a], place[b]), isCritical, points: null};
    seen.set(a * rows.length + b, link);
    links.push(link);
  }
  links.sort((x, y) => x.isCritical - y.isCritical); // critical ones are drawn last
  changed();
}
function changed() {
  ++version;
  rows.forEach(r => { r.right = undefined; });
  links.forEach(l => { l.points = null; });
  stage.style.width = namesWidth + cellsWidth + plan.days * perDay + 180 + 'px';
  stage.style.height = HEAD + top[shown.length] + 'px';
  draw();
}
function rowAt(y) { // of those that show; clamped
  let low = 0, high = shown.length;
  while (low < high) { const middle = (low + high) >> 1; if (top[middle + 1] > y) high = middle; else low = middle + 1; }
  return Math.min(low, shown.length - 1);
}
const xOf = secs => secs / DAY * perDay;
const isDated = r => r.start >= 0;
const middleOf = r => top[place[r.i]] + r.height / 2;
function ends(r) { // left and right edge of what is drawn
  if (r.flags & MILESTONE) { const x = xOf((r.start + r.finish) / 2); return [x - 7.5, x + 7.5]; }
  const x1 = xOf(r.start);
  return [x1, Math.max(xOf(r.finish), x1 + 2)];
}
function rightOf(r) { // with slack and label
  if (r.right === undefined) {
    const x = ends(r)[1], behind = r.slack > 0 ? Math.max(x, xOf(r.slack)) : x;
    r.labelAt = behind + PAD;
    r.right = r.label ? r.labelAt + measure(r.label, SMALL) : behind;
  }
  return r.right;
}

// ---- Links: along the gutters between rows, down where no bar and no label is in the way --------------------------
const FAR = 300; // rows; a longer link shows its two ends
function route(link) {
  if (link.points) return link.points;
  const a = rows[link.a], b = rows[link.b];
  const down = place[link.b] > place[link.a];
  const ax = ends(a)[1], ay = middleOf(a), out = ax + 6;
  const gutterA = top[place[a.i] + (down ? 1 : 0)], gutterB = top[place[b.i] + (down ? 0 : 1)];
  const isMilestone = !!(b.flags & MILESTONE), by = middleOf(b);
  const bx = isMilestone ? (ends(b)[0] + ends(b)[1]) / 2 : ends(b)[0];
  const last = isMilestone ? [[bx, gutterB], [bx, by + (down ? -7.5 : 7.5)]] : [[bx - 8, gutterB], [bx - 8, by], [bx, by]];
  const wish = isMilestone ? bx : bx - 8;
  if (link.high - link.low > FAR) {
    link.points = [[[ax, ay], [out, ay], [out, gutterA]], [[wish, gutterB], ...last.slice(1)]];
  } else {
    const x = gutterA === gutterB ? wish : clear(link.low + 1, link.high - 1, [wish, out]);
    link.points = [[[ax, ay], [out, ay], [out, gutterA], [x, gutterA], [x, gutterB], ...last]];
  }
  return link.points;
}
function clear(first, end, wishes) {
  const blocks = [];
  for (let k = first; k <= end; ++k) {
    const r = rows[shown[k]];
    if (!isDated(r)) continue;
    const [from, to] = ends(r), right = rightOf(r);
    blocks.push([from - 4, to + 4]);
    if (r.label) blocks.push([r.labelAt - 4, right + 4]);
  }
  const isFree = x => blocks.every(([from, to]) => x <= from || x >= to);
  for (const x of wishes) if (isFree(x)) return x;
  if (blocks.length > 60) return wishes[0];
  const edges = blocks.flat().sort((p, q) => Math.abs(p - wishes[0]) - Math.abs(q - wishes[0]));
  const free = edges.find(isFree);
  return free === undefined ? wishes[0] : free;
}
function linkMarkup(link) {
  const lines = route(link), kind = link.isCritical ? 'critical-link' : 'link';
  const isNear = link.a === selected || link.b === selected ? ' near' : '';
  const path = lines.map(points => 'M' + points.map(([x, y]) => round(x) + ' ' + round(y)).join('L')).join('');
  const points = lines[lines.length - 1], [x, y] = points[points.length - 1], [fromX, fromY] = points[points.length - 2];
  const dx = Math.sign(x - fromX), dy = Math.sign(y - fromY);
  const head = `M${round(x)} ${round(y)}L${round(x - 6 * dx - 3 * dy)} ${round(y - 6 * dy - 3 * dx)}` +
      `L${round(x - 6 * dx + 3 * dy)} ${round(y - 6 * dy + 3 * dx)}Z`;
  return `<path class="${kind}${isNear}" d="${path}"/><path class="${kind}-head${isNear}" d="${head}"/>`;
}

// ---- Bars ----------------------------------------------------------------------------------------------------------
function barMarkup(r) {
  if (!isDated(r)) return '';
  const [x1, x2] = ends(r), y = middleOf(r), width = x2 - x1, critical = r.flags & CRITICAL ? 'critical-' : '';
  let svg = `<g data-row="${r.i}">`;
  const rect = (kind, x, from, w, h, radius) =>
    `<rect class="${kind}" x="${round(x)}" y="${round(from)}" width="${round(Math.max(w, 0))}" height="${h}"` +
    (radius ? ` rx="${Math.min(radius, w / 2)}"/>` : '/>');
  const diamond = (kind, x, half) => `<path class="${kind}" d="M${round(x - half)} ${y}L${round(x)} ${y - half}` +
    `L${round(x + half)} ${y}L${round(x)} ${y + half}Z"/>`;
  if (r.base) {
    const b1 = xOf(r.base[0]), b2 = xOf(r.base[1]);
    svg += r.flags & MILESTONE ? diamond('baseline-milestone', (b1 + b2) / 2, 5)
                               : rect('baseline', b1, y + 9, Math.max(b2 - b1, 1), 3);
  }
  if (r.slack > 0 && xOf(r.slack) > x2 + 3) {
    const end = round(xOf(r.slack));
    svg += `<path class="slack" d="M${round(x2)} ${y}H${end}"/><path class="slack-end" d="M${end} ${y - 4}v8"/>`;
  }
  if (r.flags & MILESTONE) {
    svg += diamond(critical + 'milestone', (x1 + x2) / 2, 7.5);
    if (critical) svg += `<path class="critical-milestone-edge" d="M${round(x1)} ${y}l7.5 7.5l7.5 -7.5"/>`;
  } else if (r.flags & SUMMARY) {
    const tip = Math.min(7, width / 2);
    svg += `<path class="summary" d="M${round(x1)} ${y - 4}H${round(x2)}v10l${-tip} -5H${round(x1 + tip)}l${-tip} 5Z"/>`;
    if (r.done > 0) svg += `<path class="summary-done" d="M${round(x1 + 1)} ${y - 1.5}h${round(Math.max(width * r.done - 2, 0))}"/>`;
    // Its tips can be outside of what a pointer hits; this is not.
    svg += rect('hit', x1, y - 7, width, 15);
  } else {
    svg += rect(critical + 'bar', x1 + .5, y - 7, width - 1, 14, 2.5);
    if (r.done > 0) svg += rect(critical + 'done', x1, y - 7.5, width * r.done, 15, 2.5);
    if (critical) svg += `<path class="critical-bar-edge" d="M${round(x1 + 1)} ${y + 6.5}H${round(x2 - 1)}"/>`;
  }
  if (r.i === selected) svg += rect('active-halo', x1 - 3, y - 10.5, width + 6, 21, 4);
  rightOf(r);
  if (r.label) svg += `<text class="label" x="${round(r.labelAt)}" y="${y + 4}">${esc(r.label)}</text>`;
  return svg + '</g>';
}

// ---- The axis ------------------------------------------------------------------------------------------------------
const F = {
  fullDay: format({weekday: 'short', day: 'numeric', month: 'long', year: 'numeric'}),
  week: format({day: 'numeric', month: 'long', year: 'numeric'}),
  month: format({month: 'long', year: 'numeric'}),
  shortMonth: format({month: 'short', year: 'numeric'}), onlyMonth: format({month: 'short'}),
  letter: format({month: 'narrow'}), weekday: format({weekday: 'narrow'})
};
const yearOf = day => dateOf(day).getUTCFullYear();
// Each unit: its usual length in days, the least pixels at which its ticks can be told apart, the texts it can bear, the
// longest first.
const UNITS = [
  ...[1, 5, 15, 60].map(minutes => ({minutes, least: 40, above: 'day', texts: (d, e, clock) => [clock]})),
  {name: 'day', step: 1, least: 20, above: 'week', texts: (d, e, clock, isMajor) => isMajor
    ? [F.fullDay.format(dateOf(d)), shortDate.format(dateOf(d))]
    : [dateOf(d).getUTCDate() + ' ' + F.weekday.format(dateOf(d)), '' + dateOf(d).getUTCDate()]},
  {name: 'week', step: 7, least: 34, above: 'month', texts: (d, e, clock, isMajor) => isMajor
    ? [F.week.formatRange(dateOf(d), dateOf(d + 6)), shortDate.formatRange(dateOf(d), dateOf(d + 6)), shortDate.format(dateOf(d))]
    : [shortDate.format(dateOf(d)), '' + dateOf(d).getUTCDate()]},
  {name: 'month', months: 1, least: 26, above: 'year', texts: (d, e, clock, isMajor) => isMajor
    ? [F.month.format(dateOf(d)), F.shortMonth.format(dateOf(d)), F.onlyMonth.format(dateOf(d))]
    : [F.onlyMonth.format(dateOf(d)), F.letter.format(dateOf(d))]},
  {name: 'quarter', months: 3, least: 30, above: 'year', texts: d => ['Q' + (Math.floor(dateOf(d).getUTCMonth() / 3) + 1)]},
  {name: 'year', months: 12, least: 36, above: 'decade', texts: d => ['' + yearOf(d)]},
  {name: 'decade', months: 120, least: 0, above: 'century', texts: d => [yearOf(d) + ' – ' + (yearOf(d) + 9), '' + yearOf(d)]},
  {name: 'century', months: 1200, least: 0, texts: d => [yearOf(d) + ' – ' + (yearOf(d) + 99)]}
];
const unitNamed = name => UNITS.find(u => u.name === name);
const span = (plan.hours[1] - plan.hours[0]) * 60; // minutes that one date shows
const lengthOf = u => u.minutes ? u.minutes / span : u.step || u.months * 30.4;
function ticks(u, from, to) { // [start, end, text of the clock]
  const all = [];
  if (u.months) {
    const date = dateOf(from), at = k => Date.UTC(Math.floor(k / 12), k % 12, 1) / 864e5 - plan.day0;
    let k = Math.floor((date.getUTCFullYear() * 12 + date.getUTCMonth()) / u.months) * u.months;
    for (; at(k) < to; k += u.months) all.push([at(k), at(k + u.months)]);
  } else if (u.step) {
    const first = u.step === 7 ? Math.floor(from) - weekday(Math.floor(from)) : Math.floor(from);
    for (let d = first; d < to; d += u.step) all.push([d, d + u.step]);
  } else {
    for (let d = Math.floor(from); d < to; ++d) for (let m = 0; m < span; m += u.minutes) {
      const clock = plan.hours[0] * 60 + m, start = d + m / span, end = d + Math.min(m + u.minutes, span) / span;
      if (end >= from && start < to)
        all.push([start, end, String(Math.floor(clock / 60)).padStart(2, '0') + ':' + String(clock % 60).padStart(2, '0')]);
    }
  }
  return all;
}
const minorUnit = () => UNITS.find(u => lengthOf(u) * perDay >= u.least);
function axisMarkup(from, to, left) { // days; left: pixels at which long texts may begin
  const minor = minorUnit(), major = unitNamed(minor.above || 'century');
  let svg = '';
  const line = (u, y, isMajor) => {
    const all = ticks(u, from, to), font = isMajor ? BOLD : SMALL;
    // Texts of one unit are all long or all short; those of a period stand where there is room.
    const texts = all.map(([start, end, clock]) => u.texts(start, end, clock, isMajor));
    const fits = (text, room) => text !== undefined && measure(text, font) <= room;
    let common = 0;
    if (!isMajor) while (common < 3 && !all.every(([start, end], i) => fits(texts[i][common], (end - start) * perDay - 3))) ++common;
    for (let i = 0; i < all.length; ++i) {
      const [start, end] = all[i];
      const x = start * perDay, right = end * perDay, at = isMajor ? Math.max(x, left) : x;
      const text = isMajor ? texts[i].find(t => fits(t, right - at - 8)) : texts[i][common];
      svg += `<path class="${isMajor ? 'major-line' : 'unit-line'}" d="M${round(x)} ${y}v20"/>`;
      if (!text) continue;
      const off = !isMajor && u.name === 'day' && isOff(start);
      svg += isMajor ? `<text class="head-major" x="${round(at + 6)}" y="${y + 14.5}">${esc(text)}</text>`
        : `<text class="${off ? 'head-unit-off' : 'head-unit'}" text-anchor="middle" x="${round((x + right) / 2)}" y="${y + 14}">${esc(text)}</text>`;
    }
  };
  line(major, 0, true);
  line(minor, 20, false);
  if (plan.today !== null) {
    const x = round(plan.today * perDay);
    svg += `<path class="today-mark" d="M${x - 5} 33h10l-5 7Z"/>`;
  }
  return svg;
}
function groundMarkup(from, to, y1, y2) {
  let svg = '';
  const height = y2 - y1;
  if (perDay >= 2) {
    for (let d = Math.floor(from); d < to; ++d) {
      let e = d;
      while (e < to && isOff(e)) ++e;
      if (e > d) svg += `<rect class="day-off" x="${round(d * perDay)}" y="${y1}" width="${round((e - d) * perDay)}" height="${height}"/>`;
      d = e;
    }
  }
  const minor = minorUnit(), major = unitNamed(minor.above || 'century');
  const lines = u => ticks(u, from, to).map(([start]) => `M${round(start * perDay)} ${y1}v${height}`).join('');
  return svg + `<path class="unit-line" d="${lines(minor)}"/><path class="major-line" d="${lines(major)}"/>`;
}

// ---- Drawing -------------------------------------------------------------------------------------------------------
let drawn = {version: -1};
function draw() {
  // What was drawn before may reach further than the plan does now, and the window with it.
  const height = Math.max(view.clientHeight - HEAD, 0), width = Math.max(view.clientWidth - namesWidth, 100);
  const y = Math.max(0, Math.min(view.scrollTop, top[shown.length] - height));
  const x = Math.max(0, Math.min(view.scrollLeft, parseFloat(stage.style.width) - view.clientWidth));
  const chartX = x - cellsWidth; // of the frozen names' right edge, from the chart's left
  // The head follows every step, so that its long texts stay in sight.
  const from = Math.max(chartX, -1), to = chartX + width;
  if (drawn.axis !== version + ' ' + from + ' ' + to) {
    drawn.axis = version + ' ' + from + ' ' + to;
    axis.style.left = namesWidth + cellsWidth + from + 'px';
    axis.setAttribute('width', Math.max(to - from, 1));
    axis.setAttribute('viewBox', `${from} 0 ${Math.max(to - from, 1)} ${HEAD}`);
    axis.innerHTML = axisMarkup(Math.max(from / perDay, 0), Math.min(to / perDay, plan.days), from);
  }
  if (drawn.version === version && y >= drawn.y1 && y + height <= drawn.y2 && chartX >= drawn.x1 && to <= drawn.x2) return;

  const spareY = height, spareX = width / 2;
  const y1 = Math.max(0, Math.floor(y - spareY)), y2 = Math.ceil(Math.min(top[shown.length], y + height + spareY));
  const x1 = Math.floor(Math.max(-1, chartX - spareX)), x2 = Math.ceil(Math.min(to + spareX, plan.days * perDay + 180));
  drawn = {version, axis: drawn.axis, y1: y1 === 0 ? -1e9 : y1, y2: y2 >= top[shown.length] ? 1e12 : y2,
           x1: x1 === -1 ? -1e12 : x1, x2: x2 >= plan.days * perDay + 180 ? 1e12 : x2};
  if (shown.length === 0) { chart.innerHTML = ''; return; }
  const first = rowAt(y1), last = rowAt(y2);
  drawTable(first, last);
  chart.style.left = namesWidth + cellsWidth + x1 + 'px';
  chart.style.top = HEAD + y1 + 'px';
  chart.setAttribute('width', Math.max(x2 - x1, 1));
  chart.setAttribute('height', Math.max(y2 - y1, 1));
  chart.setAttribute('viewBox', `${x1} ${y1} ${Math.max(x2 - x1, 1)} ${Math.max(y2 - y1, 1)}`);
  let svg = groundMarkup(Math.max(x1 / perDay, 0), Math.min(x2 / perDay, plan.days), y1, y2);
  if (selected >= 0 && place[selected] >= 0)
    svg += `<rect class="active-row" x="${x1}" y="${top[place[selected]]}" width="${x2 - x1}" height="${rows[selected].height}"/>`;
  let edges = '';
  for (let k = first; k <= last; ++k) edges += `M${x1} ${top[k + 1] - .5}H${x2}`;
  svg += `<path class="row-line" d="${edges}"/>`;
  if (plan.today !== null) svg += `<path class="today" d="M${round(plan.today * perDay)} ${y1}V${y2}"/>`;
  let marks = '';
  for (let k = first; k <= last; ++k) marks += barMarkup(rows[shown[k]]);
  for (const link of links) if (link.low <= last && link.high >= first) svg += linkMarkup(link);
  chart.innerHTML = svg + marks;
}
function nameMarkup(r) {
  const name = nameOf(r);
  let text = esc(name);
  if (wanted) {
    const at = name.toLowerCase().indexOf(wanted);
    if (at >= 0) text = esc(name.slice(0, at)) + '<mark>' + esc(name.slice(at, at + wanted.length)) + '</mark>' + esc(name.slice(at + wanted.length));
  }
  return text;
}
function rowClasses(r) {
  return 'row' + (r.flags & SUMMARY ? ' sum' : '') + (r.i === selected ? ' active' : '');
}
function cellMarkup(r, column) {
  const text = r.cells[column.at];
  const isMuted = !text || /^0 ?%$/.test(text);
  return `<span role="gridcell" class="cell${column.right ? ' right' : ''}${isMuted ? ' muted' : ''}" style="width:${column.width}px">${esc(text)}</span>`;
}
function nameCells(r) {
  const fold = r.flags & SUMMARY ? `<i class="fold${r.folded ? ' folded' : ''}" data-fold="${r.i}"></i>` : '<i class="fold none"></i>';
  return numbered.map(c => cellMarkup(r, c)).join('') +
    `<span role="gridcell" class="cell name" style="padding-left:${8 + Math.min(r.level - 1, 8) * 16}px">${fold}${nameMarkup(r)}</span>`;
}
function drawTable(first, last) {
  let names = '', cells = '';
  for (let k = first; k <= last; ++k) {
    const r = rows[shown[k]], style = `style="top:${top[k]}px;height:${r.height}px"`;
    const fold = r.flags & SUMMARY ? ` aria-expanded="${!r.folded}"` : '';
    names += `<div id="row${r.i}" role="row" aria-level="${r.level}" aria-rowindex="${k + 2}" aria-selected="${r.i === selected}"${fold}` +
      ` class="${rowClasses(r)}" data-row="${r.i}" ${style}>${nameCells(r)}</div>`;
    cells += `<div class="${rowClasses(r)}" data-row="${r.i}" ${style}>${columns.map(c => cellMarkup(r, c)).join('')}</div>`;
  }
  $('names').innerHTML = names;
  $('cells').innerHTML = cells;
}

// ---- Columns -------------------------------------------------------------------------------------------------------
const named = plan.cols.findIndex((c, i) => i === plan.name);
const numbered = []; // before the name
const others = [];
function measureColumns() {
  // As wide as the document has them, narrower where their contents need less. Of a long plan, a part is looked at.
  const step = Math.max(1, Math.floor(rows.length / 1000));
  plan.cols.forEach((c, at) => {
    let need = measure(c.title, BOLD);
    for (let i = rows.length - 1; i >= 0; i -= step) { // the last row has the longest number
      const r = rows[i], indent = at === plan.name ? 22 + Math.min(r.level - 1, 8) * 16 : 0;
      need = Math.max(need, measure(r.cells[at].slice(0, 200), r.flags & SUMMARY ? BOLD : TEXT) + indent);
    }
    // The document's width was chosen for a title in its own language, which may be a shorter one.
    const title = at ? Math.min(measure(c.title, BOLD) + 22, 120) : 0;
    const column = {at, title: c.title, right: c.right, width: Math.ceil(Math.max(40, title, Math.min(at ? c.width : 99, need + 22)))};
    if (at === plan.name) namesWidth = column.width;
    else if (c.shown && at < named && at === 0 && c.right) numbered.push(column);
    else if (c.shown) others.push(column);
  });
  namesWidth = Math.max(160, namesWidth);
  numbered.forEach(c => { namesWidth += c.width; });
}
function chooseColumns() {
  let room = view.clientWidth * 0.5 - namesWidth;
  columns = others.filter(c => chosen === 'all' || (chosen === 'auto' && (room -= c.width) >= 0));
  cellsWidth = columns.reduce((sum, c) => sum + c.width, 0);
  const title = c => `<span role="columnheader" class="cell${c.right ? ' right' : ''}" style="width:${c.width}px" title="${esc(c.title)}">` +
    esc(numbered.includes(c) && measure(c.title, BOLD) > c.width - 20 ? '#' : c.title) + '</span>';
  $('headnames').innerHTML = numbered.map(title).join('') +
    `<span role="columnheader" class="cell name" style="padding-left:22px">${esc(plan.cols[plan.name].title)}</span>`;
  $('headcells').innerHTML = columns.map(title).join('');
  for (const id of ['names', 'headnames']) $(id).style.width = namesWidth + 'px';
  for (const id of ['cells', 'headcells']) { $(id).style.left = namesWidth + 'px'; $(id).style.width = cellsWidth + 'px'; }
}

// ---- Zoom ----------------------------------------------------------------------------------------------------------
const MOST = 3e7; // pixels that browsers can still scroll over
const clampZoom = value => Math.min(Math.max(value, 300 / plan.days, 0.02), MOST / plan.days, 40 * span);
function zoomTo(value, anchor) { // anchor: pixels from the left edge of the chart's window
  const x = anchor === undefined ? (view.clientWidth - namesWidth) / 2 : anchor;
  const day = (view.scrollLeft - cellsWidth + x) / perDay;
  perDay = clampZoom(value);
  changed();
  view.scrollLeft = day * perDay + cellsWidth - x;
  draw();
}
function fitZoom() {
  perDay = clampZoom((view.clientWidth - namesWidth - cellsWidth - 150) / plan.days);
  changed();
  view.scrollLeft = 0;
  draw();
}
function goToDay(day) {
  view.scrollLeft = day * perDay + cellsWidth - (view.clientWidth - namesWidth) / 3;
  draw();
}

// ---- Folding, finding, jumping -------------------------------------------------------------------------------------
function toggle(i, folded) {
  const r = rows[i];
  if (!(r.flags & SUMMARY) || r.folded === folded) return;
  r.folded = folded === undefined ? !r.folded : folded;
  if (selected >= 0) for (let p = rows[selected].parent; p >= 0; p = rows[p].parent) if (rows[p].folded) selected = p;
  arrange();
  tell();
}
function foldAll(folded) {
  rows.forEach(r => { if (r.flags & SUMMARY) r.folded = folded; });
  if (selected >= 0) while (folded && rows[selected].parent >= 0) selected = rows[selected].parent;
  arrange();
  show(selected, false);
}
function show(i, withBar = true) { // selects, unfolds what hides it and scrolls there
  if (i < 0) return;
  let isHidden = false;
  for (let p = rows[i].parent; p >= 0; p = rows[p].parent) if (rows[p].folded) { rows[p].folded = false; isHidden = true; }
  selected = i;
  if (isHidden) arrange(); else { ++version; }
  const r = rows[i], y = top[place[i]], room = view.clientHeight - HEAD;
  if (y < view.scrollTop) view.scrollTop = y - room / 4;
  else if (y + r.height > view.scrollTop + room) view.scrollTop = y + r.height - room * 3 / 4;
  if (withBar && isDated(r)) {
    const [x1, x2] = ends(r), left = view.scrollLeft - cellsWidth, width = view.clientWidth - namesWidth;
    if (x1 < left || Math.min(x2, x1 + width / 2) > left + width) view.scrollLeft = x1 + cellsWidth - width / 4;
  }
  view.setAttribute('aria-activedescendant', 'row' + i);
  draw();
  tell();
}
function jump(i) { trail.push(selected); show(i); view.focus(); }
function find(text) {
  wanted = text.trim().toLowerCase();
  matches = wanted ? rows.filter(r => nameOf(r).toLowerCase().includes(wanted) || String(r.id) === wanted).map(r => r.i) : [];
  match = -1;
  ++version;
  if (matches.length) nextMatch(1); else draw();
  tellMatch();
}
function nextMatch(step) {
  if (!matches.length) return;
  if (match < 0) match = Math.max(0, matches.findIndex(i => i >= Math.max(selected, 0)));
  else match = (match + step + matches.length) % matches.length;
  show(matches[match]);
  tellMatch();
}
function tellMatch() {
  $('found').textContent = !wanted ? '' : matches.length ? fill(T.found, match + 1, matches.length) : T.notFound;
}

// ---- What is told of a task ----------------------------------------------------------------------------------------
function reasons(r) {
  const all = [], driving = r.waits.filter(w => w[1]).map(w => nameOf(rows[w[0]]));
  if (driving.length) all.push(fill(T.waits, driving.slice(0, 3).join(', ') + (driving.length > 3 ? ' …' : '')));
  else if (r.flags & ATSTART) all.push(T.atStart);
  if (r.flags & CRITICAL) all.push(T.critical);
  return all;
}
const facts = r => plan.cols.map((c, at) => [c.title, r.cells[at], at]).filter(([title, text, at]) => text && at !== plan.name && plan.cols[at].tells);
const element = (tag, text, kind) => { const e = document.createElement(tag); e.textContent = text; if (kind) e.className = kind; return e; };
function tell() {
  const info = $('info');
  info.textContent = '';
  if (selected < 0) { info.append(element('span', T.hint, 'muted')); return; }
  const r = rows[selected], line = element('div', '', 'line');
  line.append(element('b', nameOf(r)));
  facts(r).forEach(([title, text]) => { line.append(element('span', title + ' ', 'muted'), element('span', text)); });
  reasons(r).forEach(text => line.append(element('em', text)));
  info.append(line);
  const jumps = element('div', '', 'line');
  const list = (title, indexes) => {
    if (!indexes.length) return;
    jumps.append(element('span', title, 'muted'));
    indexes.slice(0, 12).forEach(i => { const b = element('button', nameOf(rows[i])); b.onclick = () => jump(i); jumps.append(b); });
    if (indexes.length > 12) jumps.append(element('span', '+' + (indexes.length - 12), 'muted'));
  };
  list(T.before, r.waits.map(w => w[0]));
  list(T.after, r.then);
  info.append(jumps);
}
const tip = $('tip');
function showTip(i, x, y) {
  const r = rows[i];
  tip.textContent = '';
  tip.append(element('b', nameOf(r)));
  facts(r).forEach(([title, text]) => { const line = element('div', ''); line.append(element('span', title, 'muted'), element('span', text)); tip.append(line); });
  reasons(r).forEach(text => tip.append(element('em', text)));
  tip.hidden = false;
  const box = tip.getBoundingClientRect();
  tip.style.left = Math.max(4, Math.min(x + 14, innerWidth - box.width - 8)) + 'px';
  tip.style.top = (y + 20 + box.height > innerHeight ? Math.max(4, y - box.height - 12) : y + 18) + 'px';
}

// ---- Paper: all rows in a table whose head stands on every sheet, the time axis as wide as there is room -----------
function paper() {
  const kept = [perDay, selected];
  const wide = 1010, side = others.slice(0, 4).reduce((sum, c) => sum + c.width, 0) + Math.min(namesWidth, 300);
  const room = Math.max(300, wide - side);
  selected = -1;
  perDay = (room - 110) / plan.days;
  rows.forEach(r => { r.right = undefined; });
  links.forEach(l => { l.points = null; });
  const cols = others.slice(0, 4), through = shown.map(() => []);
  links.forEach(link => {
    const markup = linkMarkup(link);
    if (link.high - link.low > FAR) { through[place[link.a]].push(markup); through[place[link.b]].push(markup); }
    else for (let k = link.low; k <= link.high; ++k) through[k].push(markup);
  });
  const svg = (y, height, markup) => `<svg width="${room}" height="${height}" viewBox="-2 ${y} ${room} ${height}">${markup}</svg>`;
  let html = `<thead><tr><th class="name" style="width:${Math.min(namesWidth, 300)}px">${esc(plan.cols[plan.name].title)}</th>` +
    cols.map(c => `<th${c.right ? ' class="right"' : ''} style="width:${c.width}px">${esc(c.title)}</th>`).join('') +
    `<th class="chart">${svg(0, HEAD, axisMarkup(0, plan.days, 0))}</th></tr></thead><tbody>`;
  shown.forEach((i, k) => {
    const r = rows[i];
    const today = plan.today === null ? '' : `<path class="today" d="M${round(plan.today * perDay)} ${top[k]}v${r.height}"/>`;
    html += `<tr${r.flags & SUMMARY ? ' class="sum"' : ''}><td class="name" style="padding-left:${8 + Math.min(r.level - 1, 8) * 12}px">${esc(nameOf(r))}</td>` +
      cols.map(c => `<td${c.right ? ' class="right"' : ''}>${esc(r.cells[c.at])}</td>`).join('') +
      `<td class="chart">${svg(top[k], r.height, groundMarkup(0, plan.days, top[k], top[k + 1]) + today + through[k].join('') + barMarkup(r))}</td></tr>`;
  });
  $('paper').innerHTML = html + '</tbody>';
  [perDay, selected] = kept;
  rows.forEach(r => { r.right = undefined; });
  links.forEach(l => { l.points = null; });
}

// ---- Keys and pointers ---------------------------------------------------------------------------------------------
function step(count) {
  if (!shown.length) return;
  const at = selected < 0 ? (count > 0 ? -1 : shown.length) : place[selected];
  show(shown[Math.max(0, Math.min(shown.length - 1, at + count))], false);
}
const page = () => Math.max(1, Math.floor((view.clientHeight - HEAD) / 30) - 1);
const KEYS = {
  ArrowDown: () => step(1), ArrowUp: () => step(-1), PageDown: () => step(page()), PageUp: () => step(-page()),
  Home: () => step(-rows.length), End: () => step(rows.length),
  ArrowRight: () => { const r = rows[selected]; if (!r) return; if (r.folded) toggle(selected, false); else if (r.flags & SUMMARY) step(1); },
  ArrowLeft: () => { const r = rows[selected]; if (!r) return; if (r.flags & SUMMARY && !r.folded) toggle(selected, true); else show(r.parent, false); },
  Enter: () => show(selected), ' ': () => { if (selected >= 0) toggle(selected); },
  '+': () => zoomTo(perDay * 1.5), '=': () => zoomTo(perDay * 1.5), '-': () => zoomTo(perDay / 1.5), 0: fitZoom,
  '/': () => $('find').focus(), t: () => { if (plan.today !== null) goToDay(plan.today); }, c: () => $('cols').click(),
  p: () => { if (selected >= 0 && rows[selected].waits.length) jump(rows[selected].waits[0][0]); },
  s: () => { if (selected >= 0 && rows[selected].then.length) jump(rows[selected].then[0]); },
  Backspace: () => { if (trail.length) show(trail.pop()); },
  n: () => nextMatch(1), N: () => nextMatch(-1), '?': () => $('keys').showModal(), Escape: () => { tip.hidden = true; }
};
view.addEventListener('keydown', event => {
  if (event.ctrlKey || event.altKey || event.metaKey || !KEYS[event.key]) return;
  event.preventDefault();
  KEYS[event.key]();
});
$('find').addEventListener('input', event => find(event.target.value));
$('find').addEventListener('keydown', event => {
  if (event.key === 'Enter') { event.preventDefault(); nextMatch(event.shiftKey ? -1 : 1); }
  if (event.key === 'Escape') { event.target.value = ''; find(''); view.focus(); }
});
stage.addEventListener('click', event => {
  const fold = event.target.closest('[data-fold]'), row = event.target.closest('[data-row]');
  if (fold) return toggle(+fold.dataset.fold);
  if (row) return show(+row.dataset.row, event.target.closest('#names') !== null);
  const y = event.clientY - stage.getBoundingClientRect().top - HEAD;
  if (y >= 0 && shown.length && y < top[shown.length]) show(shown[rowAt(y)], false);
});
stage.addEventListener('dblclick', event => {
  const row = event.target.closest('[data-row]');
  if (row && !event.target.closest('[data-fold]')) toggle(+row.dataset.row);
});
chart.addEventListener('pointermove', event => {
  const bar = event.target.closest('[data-row]');
  if (bar) showTip(+bar.dataset.row, event.clientX, event.clientY); else tip.hidden = true;
});
chart.addEventListener('pointerleave', () => { tip.hidden = true; });
view.addEventListener('wheel', event => {
  if (!event.ctrlKey) return;
  event.preventDefault();
  zoomTo(perDay * Math.exp(-event.deltaY / 300), event.clientX - view.getBoundingClientRect().left - namesWidth);
}, {passive: false});
let isWaiting = false;
view.addEventListener('scroll', () => {
  tip.hidden = true;
  if (isWaiting) return;
  isWaiting = true;
  requestAnimationFrame(() => { isWaiting = false; draw(); });
});
addEventListener('resize', () => { chooseColumns(); changed(); });
addEventListener('beforeprint', paper);
addEventListener('afterprint', () => { $('paper').textContent = ''; });

// ---- Start ---------------------------------------------------------------------------------------------------------
const button = (id, text, title, act) => { const b = $(id); b.textContent = text; b.title = title; b.setAttribute('aria-label', title); b.onclick = () => { act(); view.focus(); }; };
button('out', '−', T.zoomOut, () => zoomTo(perDay / 1.5));
button('in', '+', T.zoomIn, () => zoomTo(perDay * 1.5));
button('fit', T.fit, T.fitTitle, fitZoom);
button('now', T.today, T.todayTitle, () => goToDay(plan.today));
button('fold', T.fold, T.foldTitle, () => foldAll(true));
button('unfold', T.unfold, T.unfoldTitle, () => foldAll(false));
button('cols', T.columns, T.columnsTitle, () => { chosen = {auto: 'all', all: 'none', none: 'auto'}[chosen]; chooseColumns(); changed(); });
$('help').onclick = () => $('keys').showModal();
$('help').title = T.keys;
$('now').hidden = plan.today === null || plan.today < 0 || plan.today > plan.days;
$('fold').hidden = $('unfold').hidden = !rows.some(r => r.flags & SUMMARY);
$('find').placeholder = T.find;
$('find').setAttribute('aria-label', T.find);
$('title').textContent = document.title;
$('count').textContent = fill(T.tasks, rows.length);
view.setAttribute('aria-label', document.title);
view.setAttribute('aria-rowcount', rows.length + 1);
const list = $('keylist');
T.keyList.forEach(([key, what]) => { const line = element('tr', ''); line.append(element('th', key), element('td', what)); list.append(line); });
measureColumns();
chooseColumns();
// The whole plan where its days stay wide enough to be told apart, else the part round today.
perDay = clampZoom((view.clientWidth - namesWidth - cellsWidth - 150) / plan.days);
const isPart = perDay < 4 && plan.days < 3000;
perDay = isPart ? 4 : plan.days > 4 ? Math.min(perDay, 60) : perDay;
arrange();
if (isPart && plan.today > 0 && plan.today < plan.days) goToDay(plan.today);
tell();
view.focus({preventScroll: true});
})();
