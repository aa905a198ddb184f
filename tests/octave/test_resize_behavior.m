% Resize behaviours and resize handles from the script.
s = VOR2.Scene();
n = VOR2.RectNode([0 0 100 60]);

% A behaviour needs its target in a scene; the edges are told by name.
expect_error(@() VOR2.ResizeBehavior(n, 'Left', 'Top'), 'VOR2:InvalidScene', 'Invalid scene');
s.addNode(n);
expect_error(@() VOR2.ResizeBehavior(n, 'Top', 'Left'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: Left, Center, Right');
b = VOR2.ResizeBehavior(n, 'Right', 'Bottom');
assert(isa(b, 'VOR2.Behavior'));
assert(b.TargetNode == n);
assert(isempty(b.Node));
assert(b.MinimumSize, [20 20]);
b.MinimumSize = [5 8];
assert(b.MinimumSize, [5 8]);
b.setCorner('Left', 'Center');
expect_error(@() b.setCorner('Left', 'Middle'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: Top, Center, Bottom');
other = VOR2.RectNode([0 0 1 1]);
b.TargetNode = other;
assert(b.TargetNode == other);
% The target is held weakly: once it is gone the property is empty.
clear other
assert(isempty(b.TargetNode));

% Handles sit on the node's corners and sides, half outside it: the scene's
% bounds grow while they are there.
plain = s.Bounds;
assert(VOR2.ResizeBehavior.installControls(n));
grown = s.Bounds;
assert(grown(1) < plain(1) && grown(2) < plain(2) && grown(3) > plain(3) && grown(4) > plain(4));
VOR2.ResizeBehavior.removeControls(n);
assert(s.Bounds, plain);
assert(VOR2.ResizeBehavior.installControls(n, false));
VOR2.ResizeBehavior.removeControls(n);
assert(s.Bounds, plain);
loose = VOR2.RectNode([0 0 10 10]);
assert(~VOR2.ResizeBehavior.installControls(loose));
expect_error(@() VOR2.ResizeBehavior.installControls([]), 'VOR2:InvalidNode', 'Invalid node');
