#!/usr/bin/env python3
"""Compares what kwgantt makes of a project XML file with what another reader says of it.

usage: mspdi_check.py KWGANTT READER.py FILE.xml...

READER.py prints a file as JSON (a module with read(path)). Every task, link, resource and assignment has to be
there, and the findings have to be those that follow from the file: none is missing, none is more.
"""
import datetime, importlib.util, json, re, subprocess, sys, tempfile

D = datetime.datetime
WEEK = ['Mon', 'Tue', 'Wed', 'Thu', 'Fri', 'Sat', 'Sun']
NOBODY = (None, -65535, -65536)


def load(path):
    spec = importlib.util.spec_from_file_location('reader', path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def when(text):
    return D.strptime(text[:16], '%Y-%m-%dT%H:%M') if text else None


def clock(text):
    return int(text[:2]) * 60 + int(text[3:5])


class Calendar:
    def __init__(self, data):
        all_ = {c['uid']: c for c in data['calendars']}
        chain = []
        uid = int(data['project']['CalendarUID'] or -1)
        while uid in all_ and len(chain) < 20:
            chain.append(all_[uid])
            uid = all_[uid]['base'] if not all_[uid]['isBase'] and all_[uid]['base'] != uid else -1
        self.exceptions, self.week = [], {}
        for c in chain:
            for day, hours in c['week'].items():
                self.week.setdefault(day, hours)
            self.exceptions += c['exceptions']
            self.workWeeks = len(c['workWeeks'])
        office = {'working': True, 'times': [['08:00', '12:00'], ['13:00', '17:00']]}
        for i, day in enumerate(WEEK):
            self.week.setdefault(day, office if i < 5 else {'working': False, 'times': []})
        sets = [tuple(map(tuple, h['times'])) for h in self.week.values() if h['working']]
        self.usual = max(sets, key=sets.count) if sets else ()
        self.other = sum(s != self.usual for s in sets)
        self.first = min((clock(a) for a, _ in self.usual), default=0)
        self.last = max((clock(b) or 1440 for _, b in self.usual), default=1440)

    def hours(self, date):
        for x in self.exceptions:
            if when(x['from']).date() <= date <= when(x['to']).date():
                return x['times'] or self.usual if x['working'] else []
        day = self.week[WEEK[date.weekday()]]
        return day['times'] or self.usual if day['working'] else []

    def minutes(self, a, b):
        total, date = 0, a.date()
        while date <= b.date():
            lo = a.hour * 60 + a.minute if date == a.date() else 0
            hi = b.hour * 60 + b.minute if date == b.date() else 1440
            total += sum(max(0, min(hi, clock(t) or 1440) - max(lo, clock(f))) for f, t in self.hours(date))
            date += datetime.timedelta(1)
        return total

    def outside(self, moment, isFinish):
        minute = moment.hour * 60 + moment.minute
        return not (isFinish and minute == 0 and self.last == 1440) and not self.first <= minute <= self.last


def level(task):
    return task['level'] if task['level'] is not None else len((task['outline'] or '1').split('.'))


def rows_of(data):
    def isRow(t):
        isProject = t['uid'] == 0 and (t['level'] or 0) == 0
        isBlank = t['null'] or (not (t['name'] or '').strip() and not t['start'] and not t['finish'])
        return not (isProject or isBlank or t['external'])
    rows = [t for t in data['tasks'] if isRow(t)]
    return sorted(rows, key=lambda t: t['id']) if all(t['id'] is not None for t in rows) else rows


# How often each finding is expected, by words of its text; None: as often as it likes.
def expected(data, rows, calendar):
    uids = {t['uid'] for t in rows}
    externals = {t['uid'] for t in data['tasks'] if t['external']}
    active = {t['uid'] for t in rows if t['active'] is not False}
    count = {}

    def add(text, n=1):
        if n:
            count[text] = count.get(text, 0) + int(n)
    otherCalendars = {c['uid'] for c in data['calendars'] if c['week'] or c['exceptions'] or c['workWeeks']
                      or c['base'] not in (None, -1, 0, int(data['project']['CalendarUID'] or -1))}
    ownTime = {a['task'] for a in data['assignments'] for r in data['resources']
               if r['uid'] == a['resource'] and r['calendar'] in otherCalendars}
    for i, t in enumerate(rows):
        isSummary = i + 1 < len(rows) and level(rows[i + 1]) > level(t)
        for link in t['links']:
            if 'crossProject' in link or link['uid'] in externals:
                add('a link with another file')
            elif link['uid'] not in uids:
                add('a predecessor that is not in the file')
            elif t['uid'] not in active or link['uid'] not in active:
                pass
            elif link['type'] != 'FS' or link.get('lag', 0) < 0 or link.get('lagPercent', 0) != 0:
                add('a link that is not plainly')
            elif link.get('lag', 0) > 0:
                add('a link with a lag')
        add('a constraint', t['constraint'] in ('ALAP', 'MSO', 'MFO', 'SNLT', 'FNLT'))
        add('a deadline', t['deadline'] and t['deadline'] >= (data['project']['StartDate'] or ''))
        elapsed = (t['durationUnit'] or '').startswith('e') and (t['duration'] or 0) > 0
        add('an elapsed duration', elapsed)
        add('scheduled by hand', t['manual'])
        add('inactive', t['active'] is False)
        add('a recurring task', t['recurring'])
        add('the tasks of a subproject', t['subproject'])
        start, finish = when(t['start']), when(t['finish'])
        add('no start', not start and not finish)
        add('a milestone that lasts', t['milestone'] and start and finish and finish > start)
        add('further baselines', t['baselines'] > 1)
        if isSummary or not start or not finish:
            continue
        outside = calendar.outside(start, False) or calendar.outside(finish, True)
        add('a date outside', outside)
        last = (finish - datetime.timedelta(minutes=1)).date()
        add('starts or finishes on a day off',
            not calendar.hours(start.date()) or (finish > start and not calendar.hours(last)))
        if not (elapsed or outside or t['manual'] or t['duration'] is None or t['uid'] in ownTime):
            add('the work is interrupted', abs(calendar.minutes(start, finish) - t['duration']) > 2)
    add('a weekday has other hours', calendar.other)
    add('a work week', calendar.workWeeks)
    resources = [r for r in data['resources'] if not r['null'] and (r['name'] or r['uid'])]
    add('a cost resource', sum(r['type'] == 'cost' for r in resources))
    add('a rate per year', sum(r['rateFormat'] == '/y' and bool(r['rate']) for r in resources))
    spread = {a['task'] for a in data['assignments']
              if a['timephased'] or a['contour'] or a['overtimeWork'] or a['delay']}
    add('how work is spread', len(spread))
    if any(r['rateTables'] > 1 for r in resources):
        count['further rates'] = None
    if any((x.get('type') or 1) != 1 for c in data['calendars'] for x in c['exceptions']):
        count['a recurring exception'] = None
    if any(r['calendar'] in otherCalendars for r in resources) or \
            any(t['calendar'] not in (None, -1, int(data['project']['CalendarUID'] or -1)) for t in rows):
        count['a working time of its own'] = None
    count["the file's costs"] = None  # compared below
    return count


def check(program, reader, path):
    data = reader.read(path)
    rows, calendar, faults = rows_of(data), Calendar(data), []

    def same(what, ours, theirs):
        if ours != theirs:
            faults.append(f'{what}: {ours!r}, in the file {theirs!r}')
    shown = subprocess.run([program, 'show', '-v', '--json', path], capture_output=True, text=True)
    if shown.returncode != 0:
        return [shown.stderr]
    plan = json.loads(shown.stdout)
    with tempfile.TemporaryDirectory() as folder:
        again = folder + '/again.xml'
        subprocess.run([program, 'convert', '-q', path, again], check=True)
        back = reader.read(again)
    written = rows_of(back)
    same('tasks', len(plan['tasks']), len(rows))
    lowest = min(map(level, rows), default=1)
    names = {t['uid']: t['name'] for t in rows}
    ourNames = {t['uid']: t['name'] for t in written}
    for i, (ours, out, t) in enumerate(zip(plan['tasks'], written, rows)):
        at = f"task {t['id']}"
        same(f'{at} name', ours['name'], t['name'] or '')
        isSummary = i + 1 < len(rows) and level(rows[i + 1]) > level(t)
        same(f'{at} level', ours['level'], level(t) + 1 - min(lowest, 1))
        for end in ('start', 'finish'):
            theirs = when(t[end])
            if theirs and not calendar.outside(theirs, end == 'finish') and when(ours[end]) != theirs:
                faults.append(f"{at} {'summary ' if isSummary else ''}{end}: {ours[end]}, in the file {t[end]}")
        if not isSummary:
            same(f'{at} percent', ours['percent'], t['percent'] or 0)
        lasts = t['start'] and t['finish'] and when(t['start']) < when(t['finish'])
        same(f'{at} milestone', bool(out['milestone']), bool(t['milestone']) and not lasts)
        same(f'{at} notes', (out['notes'] or '').strip(), (t['notes'] or '').replace('\r\n', '\n').strip())
        same(f'{at} hyperlink', out['hyperlink'], t['hyperlink'])
        same(f'{at} priority', out['priority'], 500 if t['priority'] is None else t['priority'])
        plain = sorted({names[l['uid']] for l in t['links'] if l['type'] == 'FS' and l['uid'] in names and
                        l.get('lag', 0) >= 0 and not l.get('lagPercent')})
        same(f'{at} links', sorted({ourNames[l['uid']] for l in out['links']}), plain)
        if t['baseline'] and t['baseline']['start']:
            same(f'{at} baseline', out['baseline'] and {k: out['baseline'][k] for k in ('start', 'finish')},
                 {k: t['baseline'][k] for k in ('start', 'finish')})
    isKnown = lambda r: not r['null'] and (r['name'] or r['uid'])
    keys = ('name', 'type', 'maxUnits', 'costPerUse', 'group', 'email')
    theirs = [r for r in data['resources'] if isKnown(r)]
    same('resources', len(back['resources']), len(theirs))
    for ours, r in zip(back['resources'], theirs):
        for key in keys:
            taken = {'cost': 'material', None: 1 if key == 'maxUnits' else 0}.get(r[key], r[key])
            same(f"resource {r['name']} {key}", ours[key] or 0, taken or 0)
        same(f"resource {r['name']} rate", round(ours['rate'] or 0, 4), round(r['rate'] or 0, 4))
    uidName = lambda d: {r['uid']: r['name'] for r in d['resources'] if isKnown(r)}
    summaries = {t['uid'] for i, t in enumerate(rows)
                 if i + 1 < len(rows) and level(rows[i + 1]) > level(t)}

    def uses(d, n):
        known = uidName(d)
        material = {r['uid'] for r in d['resources'] if r['type'] != 'work'}
        return sorted((n[a['task']], known[a['resource']], round(a['units'] or 1, 4),
                       None if a['resource'] in material else a['work'] and round(a['work']))
                      for a in d['assignments'] if a['resource'] in known and a['task'] in n and
                      (d is back or a['task'] not in summaries))
    ours, theirs = uses(back, ourNames), uses(data, names)
    same('assignments', [o[:3] for o in ours], [t[:3] for t in theirs])
    same('work', [o for o, t in zip(ours, theirs) if t[3]], [t for t in theirs if t[3]])
    mine = sorted((x['from'][:10], x['to'][:10], x['working'], str(x['times'] or ''))
                  for x in back['calendars'][0]['exceptions'] if not x['old'])
    if not any(x.get('type') not in (None, 1) for x in calendar.exceptions):
        same('exceptions', mine, sorted(
        {(x['from'][:10], x['to'][:10], x['working'], str(x['times'] or list(map(list, calendar.usual)))
          if x['working'] else '') for x in calendar.exceptions}))
    wanted = expected(data, rows, calendar)
    stored = sum(t['cost'] or 0 for t in rows if t['uid'] not in summaries)
    for line in shown.stderr.splitlines():
        found = re.match(r'kwgantt: .*?\.xml: (.*)', line)
        if not found or 'custom fields' in line or 'before a predecessor' in line:
            continue
        text = found.group(1)
        number = re.search(r'\((\d+) times\)$', text)
        key = next((k for k in wanted if k in text), None)
        if key is None:
            faults.append(f'more: {text}')
        elif wanted.pop(key) not in (None, int(number.group(1)) if number else 1):
            faults.append(f'counted otherwise: {text}')
        if "the file's costs" in text and abs(stored - plan['cost']) < 0.01:
            faults.append(f'the same costs: {text}')
    faults += [f'not told: {k}' for k in wanted if wanted[k] is not None]
    return faults


if __name__ == '__main__':
    program, module, files = sys.argv[1], load(sys.argv[2]), sys.argv[3:]
    wrong = 0
    for path in files:
        faults = check(program, module, path)
        wrong += bool(faults)
        print(path, 'as in the file' if not faults else '\n  ' + '\n  '.join(faults[:25]))
    sys.exit(wrong > 0)
