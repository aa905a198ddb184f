% The viewer and its canvas from Octave: one canvas per viewer, the view it
% answers, and who ends a viewer the script made.
s = VOR2.Scene();
s.addNode(VOR2.RectNode([0 0 200 100]));
v = VOR2.Viewer(s);
assert(v.Scene == s);
c = v.Canvas;
assert(isa(c, 'VOR2.Canvas'));
assert(c == v.Canvas);
assert(c.Scene == s);
try
  v.Canvas = c;
  error('test:noError', 'Canvas is read-only');
catch err
  assert(~strcmp(err.identifier, 'test:noError'), err.message);
end

% Shown, the canvas has a view of the window's size at once.
v.showAt([20 30 300 200]);
e = c.ViewExtents;
assert(e(1) > 250 && e(1) <= 300 && e(2) > 150 && e(2) <= 200);
c.zoomToSceneRect();
r = c.SceneRectInView;
assert(r(1) <= 0 && r(2) <= 0 && r(1) + r(3) >= 200 && r(2) + r(4) >= 100, 'the whole scene shows');
c.Scale = 2;
assert(c.Scale, 2);
p = c.scenePointToViewPoint([50 25]);
assert(c.viewPointToScenePoint(p), [50 25], 1e-9);
expect_error(@() set_property(c, 'Scale', 'big'), 'VOR2:WrongType');
assert(c.Scale, 2);

% An open viewer outlives its variable; closed with none left, it ends, and
% its canvas's variable fails cleanly.
clear v
VOR2.pump(0.1);
assert(c.Scale, 2);
w = VOR2.Viewer();
cw = w.Canvas;
clear w
VOR2.pump(0.1);
expect_error(@() cw.Scale, 'VOR2:InvalidObject', 'The object this value referred to no longer exists');

% Logical scalars cross the border as they are (a node a click may select).
n = VOR2.RectNode([0 0 1 1]);
assert(~n.Selectable);
n.Selectable = true;
assert(n.Selectable);
n.Selected = true;
assert(n.Selected);
n.Selectable = false;
assert(~n.Selectable);
