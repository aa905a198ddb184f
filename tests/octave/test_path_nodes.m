% Path nodes: points and vertices, index errors with the catalogue's ids,
% and the two meanings of scale and translate.
open = VOR2.OpenLinearPathNode([0 0; 10 0; 10 10]);
assert(open.getPoints(), [0 10 10; 0 0 10]);
open.append([0 10]);
assert(open.getPoint(3), [0 10]);
open.setPoint(0, [1 1]);
assert(open.getPoint(0), [1 1]);
expect_error(@() open.getPoint(4), 'VOR2:InvalidLinearPathIndex', 'Passed an invalid index to a LinearPathNode');
expect_error(@() open.setPoint(-1, [0 0]), 'VOR2:InvalidLinearPathIndex');
expect_error(@() open.scale(-2), 'VOR2:NegativeLinearPathScale', ...
             'Tried to scale a LinearPathNode by a negative value');
assert(open.getPoint(0), [1 1]);

% scale(s) and translate([dx dy]) move the points; the two-number forms the
% node's transform.
open.scale(2);
assert(open.getPoint(1), [20 0]);
open.translate([1 -1]);
assert(open.getPoint(1), [21 -1]);
open.translate(5, 6);
assert(open.getPoint(1), [21 -1]);
assert(open.Transform(1:2, 3), [5; 6]);

closed = VOR2.ClosedLinearPathNodes();
assert(class(closed), 'VOR2.ClosedLinearPathNodes');
closed.setPoints([0 4 4; 0 0 3]);
assert(closed.BoundingRect(3:4) >= [4 3]);
expect_error(@() closed.setPoints([1 2 3]), 'VOR2:Expected2By2', 'Expected either a [2 x n] or [n x 2] array');
assert(closed.getPoints(), [0 4 4; 0 0 3]);

% Curved paths take points as vertices without tangents.
curve = VOR2.OpenCurvedPathNode([0 0; 10 10; 20 0]);
assert(curve.size(), 3);
curve.append([30 10]);
assert(curve.size(), 4);
expect_error(@() curve.setVertex(4, [0 0]), 'VOR2:InvalidCurveIndex', 'Passed an invalid index to a CurvedPathNode');
expect_error(@() curve.getVertex(-1), 'VOR2:InvalidCurveIndex');
assert(curve.size(), 4);
before = curve.BoundingRect;
curve.translate([100 0]);
assert(curve.BoundingRect(1), before(1) + 100, 1e-9);
% A negative factor mirrors a curve.
curve.scale(-1);
assert(curve.BoundingRect(1) < 0);

closedCurve = VOR2.ClosedCurvedPathNode([0 0; 10 0; 5 8]);
closedCurve.setVertices([0 0; 20 0; 10 16]);
assert(closedCurve.size(), 3);
assert(closedCurve.isOfType('CurvedPathNode'));
