% Handle semantics and lifetime of the node family and the scene.
s = VOR2.Scene();
r = VOR2.RectNode([0 0 10 20]);
assert(r.Rect, [0 0 10 20]);
s.addNode(r);

% Two variables on one node see one node, however the node was fetched.
fetched = s.nodes(){1};
assert(fetched == r);
fetched.Rect = [1 2 3 4];
assert(r.Rect, [1 2 3 4]);
assert(s == r.Scene);

% A node in a scene lives on when its variables are cleared.
r.addTag('kept');
clear r fetched
nodes = s.nodes();
assert(numel(nodes), 1);
assert(nodes{1}.hasTag('kept'));
assert(nodes{1}.Rect, [1 2 3 4]);

% A removed node's variables fail with the catalogue's error.
n = nodes{1};
n.remove();
expect_error(@() n.Rect, 'VOR2:InvalidNode', 'Invalid node');
expect_error(@() n.addTag('x'), 'VOR2:InvalidNode', 'Invalid node');
assert(numel(s.nodes()), 0);

% A bad value changes nothing.
q = VOR2.RectNode([5 5 1 1]);
expect_error(@() set_property(q, 'Rect', [1 2 3]), 'DRect:InvalidValue', ...
             'DRect requires exactly four doubles. Ex: rect = [1.0, 2.3, 3.5, -0.3]');
assert(q.Rect, [5 5 1 1]);
