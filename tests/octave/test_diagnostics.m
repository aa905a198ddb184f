% The register of measurements, read from the script.
d = VOR2.Diagnostics();
assert(d == VOR2.Diagnostics());
assert(isempty(d.getRecord('No such record')));
assert(~any(strcmp(d.getFields(), 'No such record')));

% A glowing node paints through its offscreen image; the library counts it.
name = 'Scene:Node offscreen repaint count';
before = d.getRecord(name);
if isempty(before)
  before = int32(0);
end
s = VOR2.Scene();
n = VOR2.RectNode([0 0 20 20]);
s.addNode(n);
n.Effects.add(VOR2.EffectGlow());
s.render();
after = d.getRecord(name);
assert(class(after), 'int32');
assert(after > before);
assert(any(strcmp(d.getFields(), name)));
