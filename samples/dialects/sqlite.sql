.bail on
-- A pocket copy of the price list, SQLite.
PRAGMA foreign_keys = ON;
BEGIN IMMEDIATE;

CREATE TABLE price (
    [article id] INTEGER PRIMARY KEY,
    `valid from` TEXT NOT NULL,
    amount       REAL CHECK (amount >= 0) -- never below nothing; see the trigger
);

CREATE TRIGGER IF NOT EXISTS price_log AFTER UPDATE ON price
WHEN old.amount <> new.amount
BEGIN
    INSERT INTO log (what) VALUES ('price; ' || new.[article id]);
    UPDATE state SET dirty = CASE WHEN new.amount > 100 THEN 2 ELSE 1 END;
END;

INSERT INTO price VALUES (:id, @from, $amount);
INSERT INTO price VALUES (4711, '2024-01-01', 0.35);
COMMIT;

.print it's loaded;
SELECT amount FROM price WHERE [article id] = ?1
