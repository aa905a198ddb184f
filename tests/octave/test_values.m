% Value classes: assignment copies, nested values change in place, and a
% value read from a property changes its owner only when assigned back.

% A copy changed leaves the original as it was, for properties and for
% methods that change the value (they return the changed copy).
a = VOR2.Stroke([0 1 0], 2);
b = a;
b.Width = 7;
b.CapStyle = 'RoundCap';
assert(a.Width, 2);
assert(a.CapStyle, 'FlatCap');
assert(b.Width, 7);
assert(a ~= b);
b.Width = 2; b.CapStyle = 'FlatCap';
assert(a == b);

g = VOR2.Gradient('Linear', [0 0], [100 0]);
g2 = g.addStop(0, [1 0 0]);
g2 = g2.addStop(1, [0 0 1 0.5]);
assert(g.getStopCount(), 0);
assert(g2.getStopCount(), 2);
assert(g2.getStopColor(1), [0 0 1 0.5], 1/255);
g3 = g2.setStopPercent(1, 0.75);
assert(g2.getStopPercent(1), 1);
assert(g3.getStopPercent(1), 0.75);
assert(g3.clearColorStops().getStopCount(), 0);
assert(g3.clearAll().Type, 'NoGradient');
expect_error(@() g2.getStopColor(2), 'VOR2:InvalidIndex');

% Nested values: ds.Stroke.Width = 3 changes the draw style's own stroke.
ds = VOR2.DrawStyle(VOR2.Stroke([0 0 0], 1), VOR2.Fill([1 1 0]));
assert(class(ds.Stroke), 'VOR2.Stroke');
ds.Stroke.Width = 3;
ds.Fill.Color = [0 0.6 1];
ds.Stroke.ScaleFunction = 'Constant';
assert(ds.Stroke.Width, 3);
assert(ds.Fill.Color, [0 0.6 1 1]);
assert(ds.getStroke().ScaleFunction, 'Constant');
% A nested value read out is a copy too.
s = ds.Stroke;
s.Width = 9;
assert(ds.Stroke.Width, 3);
ds.Stroke = s;
assert(ds.Stroke.Width, 9);
% Three levels down: the fill's gradient.
f = VOR2.Fill(g2);
f.Gradient.Radius = 4;
f.Gradient.Type = 'Radial';
assert(f.Gradient.Radius, 4);
assert(f.Gradient.getStopCount(), 2);
assert(f.Style, 'GradientFill');

% A failed change leaves the value as it was.
expect_error(@() set_property(ds.Stroke, 'ScaleFunction', 'Quadratic'), 'VOR2:UnknownScale', ...
             'Unknown scale function type');
expect_error(@() set_property(ds, 'Stroke', VOR2.Fill()), 'VOR2:WrongType', 'Expected VOR2.Stroke, got VOR2.Fill');
assert(ds.Stroke.ScaleFunction, 'Constant');

% A font keeps weight and style as flags; they come back by name.
fo = VOR2.Font('DejaVu Serif', 12, 'Bold', 'Italic');
fo.Size = 14.5;
assert({fo.Family, fo.Weight, fo.Style, fo.Size}, {'DejaVu Serif', 'Bold', 'Italic', 14.5});
bg = VOR2.Background([0 0 1]);
assert(bg.hasColor() && ~bg.hasImage());
bg.Image = 'tiles.png';
bg2 = bg.clearColor();
assert(bg.hasColor() && ~bg2.hasColor() && bg2.hasImage());

% A decoration holds its node: copies share it.
head = VOR2.RectNode([-2 -2 4 4]);
d = VOR2.LineEndDecoration(head);
d.LineBackoff = 2;
d2 = d.desiredDirection([0 1]);
assert(d2.Node == head);
assert(d2.getBackoffVector(), [0 2], 1e-12);
assert(d.getBackoffVector(), [2 0], 1e-12);

% A weak reference names a node without keeping it.
n = VOR2.RectNode([0 0 1 1]);
w = VOR2.WeakRef(n);
assert(w.isValid);
assert(w.promote() == n);
clear n
assert(~w.isValid);
assert(isempty(w.promote()));
assert(~VOR2.WeakRef().isValid);

% A value read from a node's property changes the node only when assigned back.
if has_member('VOR2.Node', 'DrawStyle')
  r = VOR2.RectNode([0 0 10 10]);
  style = r.DrawStyle;
  style.Stroke.Width = 4;
  assert(r.DrawStyle.Stroke.Width ~= 4);
  r.DrawStyle = style;
  assert(r.DrawStyle.Stroke.Width, 4);
  r.DrawStyle.Fill.Color = [1 0 0];
  assert(r.DrawStyle.Fill.Color, [1 0 0 1]);
end
